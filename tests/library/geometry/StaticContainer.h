// SPDX-License-Identifier: Apache-2.0
// The search for a container of a step.
#pragma once

#include "library/StaticSteps.h"

namespace hlxtest::statics {

inline constexpr const char* historyType = "HLXHistoryOutputRequestContainerLT";
inline constexpr const char* fieldType = "HLXFieldOutputRequestContainerLT";

class StaticContainerTest : public StaticSteps
{
protected:
    Outcome Find(const char* lateType, std::string_view faults = "")
    {
        return RunWith(faults, [&] {
            return HLXAnalysisTestUtils::GetFeatContainer(lateType, step, container);
        });
    }

    std::vector<std::string> CallsOfFind(const char* lateType, const char* faults = "")
    {
        std::vector<std::string> calls;
        RunWith(faults, [&] {
            calls =
                CallsOf([&] { HLXAnalysisTestUtils::GetFeatContainer(lateType, step, container); },
                        {"VEXISamAnalysisScan::", "HLXIContainerFactoryStep::",
                         "cast:HLXGeneralStaticStepLT->HLXIContainerFactoryStep"});
        });
        return calls;
    }

    const VEXISpecObject_var step = AddStep(1, "HLXGeneralStaticStepLT", "Step");
    const VEXBaseUnknown_var former = VEXAdopt(new VEXBaseUnknown());
    VEXBaseUnknown_var container = former;
};

}  // namespace hlxtest::statics
