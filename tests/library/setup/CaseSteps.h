// SPDX-License-Identifier: Apache-2.0
// Making one step in the first analysis case of a test case.
#pragma once

#include "HLXSteps.h"
#include "library/AnalysisSetUp.h"
#include "support/ExposedTestCase.h"

namespace hlxtest::statics {

class CaseStepTest : public AnalysisSetUp
{
protected:
    static constexpr const char* factoryName = "HLXAnalysisStepFact";
    static constexpr const char* instantiation =
        "VEXInstantiateComponent(\"HLXAnalysisStepFact\", HLXIAnalysisStepFact, &)";

    CaseStepTest()
    {
        testCase._AnalysisCases.Append(Case(1));
        testCase._AnalysisCases.Append(Case(2));
    }

    ~CaseStepTest() override
    {
        TakeStep();
        const unsigned long after = FactoryReferences<HLXIAnalysisStepFact>(factoryName);
        EXPECT_GE(after, _factoryReferences);
        ReleaseFactory<HLXIAnalysisStepFact>(factoryName, after - _factoryReferences);
    }

    HRESULT CreateUnseen(const char* type, const char* name)
    {
        return testCase.CreateStep(type, name, step);
    }
    Outcome Create(const char* type, const char* name, std::string_view faults = "")
    {
        return RunWith(faults, [&] { return CreateUnseen(type, name); });
    }

    /// The step made last, as AnalysisSetUp::StepsOf.
    std::string Step() const
    {
        const VEXBaseUnknown_var made = VEXShare<VEXBaseUnknown>(step);
        return TypeOf(made) + ": " + AliasOf(made);
    }

    /// The same, no longer in `step`.
    VEXISpecObject_var TakeStep() { return VEXAdopt<VEXBaseUnknown>(std::exchange(step, nullptr)); }

    ExposedTestCase testCase;
    VEXISamAnalysisSet* step = nullptr;

private:
    const unsigned long _factoryReferences = FactoryReferences<HLXIAnalysisStepFact>(factoryName);
};

}  // namespace hlxtest::statics
