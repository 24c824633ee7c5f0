// SPDX-License-Identifier: Apache-2.0
// Making amplitudes with a table, without a test case.
#pragma once

#include "library/setup/Amplitudes.h"

namespace hlxtest::statics {

using AmplitudeCreation = HRESULT (*)(VEXDocument*, unsigned char, VEXISpecObject_var&);
using States = std::vector<AmplitudeState>;

/// A kind of amplitude.
struct AmplitudeKind
{
    const char* name;
    AmplitudeCreation create;
    const char* lateType;
    const char* interface;

    std::string Factory() const { return std::string("HLXIAmplitudeFact::Create") + name; }
    std::string Query() const { return std::string("cast:") + lateType + "->" + interface; }

    friend void PrintTo(const AmplitudeKind& kind, std::ostream* stream) { *stream << kind.name; }
};

/// Both kinds.
inline const AmplitudeKind amplitudeKinds[] = {
    {"TabularAmplitude", &HLXAnalysisTestUtils::CreateTabularAmplitude, "HLXTabularAmplitudeLT",
     "HLXITabularAmplitude"},
    {"SmoothStepAmplitude", &HLXAnalysisTestUtils::CreateSmoothStepAmplitude,
     "HLXSmoothStepAmplitudeLT", "HLXISmoothStepAmplitude"},
};

inline std::string NameOfAmplitudeKind(const testing::TestParamInfo<AmplitudeKind>& row)
{
    return row.param.name;
}

class StaticAmplitudeTest : public AmplitudeTest, public testing::WithParamInterface<AmplitudeKind>
{
protected:
    HRESULT CreateUnseen(unsigned char option = 0)
    {
        return GetParam().create(analysis.Get(), option, amplitude);
    }
    Outcome Create(unsigned char option = 0, std::string_view faults = "")
    {
        return RunWith(faults, [&] { return CreateUnseen(option); });
    }

    /// The amplitude made, with these settings.
    static AmplitudeState Filled(int timeSpan = 0)
    {
        return {GetParam().lateType, timeSpan, tenRows};
    }
    static AmplitudeState Unfilled(int timeSpan = 0) { return {GetParam().lateType, timeSpan, {}}; }

    VEXISpecObject_var amplitude;
};

}  // namespace hlxtest::statics
