// SPDX-License-Identifier: Apache-2.0
// Making steps from a list of codes.
#pragma once

#include "HLXSteps.h"
#include "library/AnalysisSetUp.h"

namespace hlxtest::statics {

/// What a code stands for.
struct StepKind
{
    const char* code;
    const char* prefix;  ///< of the name
    const char* lateType;
    const char* told;

    std::string Name(int position) const { return prefix + std::to_string(position); }
    /// As AnalysisSetUp::StepsOf.
    std::string Step(int position) const { return std::string(lateType) + ": " + Name(position); }
    /// The call that makes it.
    std::string Call(int position) const
    {
        return "HLXStepUtils::AddStep(\"" + Name(position) + "\", HLXHacAnalysisCaseLT, &, \"" +
               lateType + "\")";
    }

    friend void PrintTo(const StepKind& kind, std::ostream* stream) { *stream << kind.code; }
};

inline constexpr StepKind stepKinds[] = {
    {"GSS", "General_Static_Step_", "HLXGeneralStaticStepLT",
     "Adding General Static step succeeded !\n"},
    {"SPS", "Staic_Perturbation_Step_", "HLXStaticLPStepLT", "Adding Static LP step succeeded !\n"},
    {"RS", "Riks_Step_", "HLXRiksStepLT", "Adding Riks step succeeded !\n"},
    {"HTS", "Heat_Transfer_Step_", "HLXHeatTransferStepLT", "Adding Static HT step succeeded !\n"},
    {"EDS", "Explicit_Dynamic_Step_", "HLXExplicitDynamicLT",
     "Adding Explicit Dynamic step succeeded !\n"},
};

inline std::string NameOfKind(const testing::TestParamInfo<StepKind>& row)
{
    return row.param.code;
}

class StepCodesTest : public AnalysisSetUp
{
protected:
    using Codes = std::vector<const char*>;

    ~StepCodesTest() override
    {
        for (int i = 1; i <= steps.Size(); ++i) {
            steps[i]->Release();
        }
    }

    static VEXListValVEXUnicodeString ListOf(const Codes& codes)
    {
        VEXListValVEXUnicodeString list;
        for (const char* const code : codes) {
            list.Append(code);
        }
        return list;
    }

    /// Makes steps of `analysisCase`, into `steps`.
    HRESULT CreateUnseen(const Codes& codes)
    {
        VEXListValVEXUnicodeString list = ListOf(codes);
        return HLXAnalysisTestUtils::CreateSteps(list, analysisCase.Get(), steps);
    }
    Outcome Create(const Codes& codes, std::string_view faults = "")
    {
        return RunWith(faults, [&] { return CreateUnseen(codes); });
    }

    /// What stands in `steps`, as AnalysisSetUp::StepsOf.
    Lines Made() const
    {
        Lines lines;
        for (int i = 1; i <= steps.Size(); ++i) {
            const VEXBaseUnknown_var step = VEXShare(steps[i]);
            lines.push_back(TypeOf(step) + ": " + AliasOf(step));
        }
        return lines;
    }

    VEXISamAnalysisCase_var analysisCase = Case(1);
    VEXListPtrVEXBaseUnknown steps;
};

}  // namespace hlxtest::statics
