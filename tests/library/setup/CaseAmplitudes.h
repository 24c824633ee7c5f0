// SPDX-License-Identifier: Apache-2.0
// Making the tabular amplitude that a test case keeps.
#pragma once

#include "library/setup/Amplitudes.h"
#include "support/ExposedTestCase.h"

namespace hlxtest::statics {

/// Messages, and calls of the platform behind that which finds the factory.
namespace caseamplitude {

inline constexpr const char* noFactory = "Could not instanciate the Amplitude factory";
inline constexpr const char* notMade = "Could not create tabular amplitude.";
inline constexpr const char* noInterface = "Could not get interface Tabular Amplitude";

inline constexpr const char* creation =
    "HLXIAmplitudeFact::CreateTabularAmplitude(&, "
    "VEXAnalysisDocument)";
inline constexpr const char* query = "cast:HLXTabularAmplitudeLT->HLXITabularAmplitude(&)";

}  // namespace caseamplitude

/// A test case that holds a smooth amplitude from before.
class CaseAmplitudeTest : public AmplitudeTest
{
protected:
    CaseAmplitudeTest()
    {
        testCase._Document = analysis.Get();
        EXPECT_EQ(HLXAnalysisTestUtils::CreateSmoothStepAmplitude(analysis.Get(), 0, former), S_OK);
        testCase._AmplitudeFeature = former;
    }

    ~CaseAmplitudeTest() override
    {
        Release();
        ReleaseFactory<HLXIAmplitudeFact>(factoryName, ReferencesToFactory() - _factoryReferences);
    }

    void Release()
    {
        if (HLXITabularAmplitude* const held = std::exchange(amplitude, nullptr)) {
            held->Release();
        }
    }

    HRESULT CreateUnseen() { return testCase.CreateTabularAmplitude(amplitude); }
    Outcome Create(std::string_view faults = "")
    {
        return RunWith(faults, [&] { return CreateUnseen(); });
    }

    /// Late types of the amplitudes behind the former one.
    Lines Made()
    {
        Lines types;
        for (const AmplitudeState& state : Amplitudes()) {
            types.push_back(state.lateType);
        }
        EXPECT_EQ(types.at(0), "HLXSmoothStepAmplitudeLT");
        types.erase(types.begin());
        return types;
    }

    ExposedTestCase testCase;
    VEXISpecObject_var former;
    HLXITabularAmplitude* amplitude = nullptr;

private:
    const unsigned long _factoryReferences = ReferencesToFactory();
};

}  // namespace hlxtest::statics
