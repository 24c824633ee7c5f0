// SPDX-License-Identifier: Apache-2.0
// The two ways by which a program makes a step.
#include "product/steps/StepFactory.h"

#include "host/feature/FeatureSearch.h"
#include "host/feature/Refusal.h"
#include "host/system/Probe.h"
#include "product/steps/StepBuilder.h"

namespace hlx {

namespace {

using vex::Feature;
using vex::In;
using vex::Out;
using vex::Probe;

/// As HLXStepUtils::AddStep.
HRESULT MakeStep(std::string_view name, const VEXISamAnalysisCase* analysisCase,
                 VEXISamAnalysisSet*& step, std::string_view lateType)
{
    if (analysisCase == nullptr) {
        return E_INVALIDARG;
    }
    Feature* const feature = vex::FeatureBehind(analysisCase);
    if (feature == nullptr) {
        return vex::Refuse(E_FAIL,
                           "no step can be added: the analysis case is gone; give one of an open "
                           "document");
    }
    std::string error;
    step = vex::FaceOf<VEXISamAnalysisSet>(AddStep(*feature, lateType, name, error)).Detach();
    return step == nullptr ? vex::Refuse(E_FAIL, error) : S_OK;
}

/// Whether the steps of a case stand below that history. True of a case that is gone.
bool IsHistoryOf(const VEXISamAnalysisCase* analysisCase, const VEXISamAnalysisScan* history)
{
    const Feature* const feature = vex::FeatureBehind(analysisCase);
    return feature == nullptr || HistoryOf(*feature) == vex::FeatureBehind(history);
}

}  // namespace

HRESULT StepFactory::CreateStep(VEXISamAnalysisScan* history, VEXISamAnalysisCase* analysisCase,
                                VEXISamAnalysisSet*& step, const VEXUnicodeString& lateType)
{
    return Probe<"HLXIAnalysisStepFact::CreateStep">(
        [&]() -> HRESULT {
            step = nullptr;
            if (history != nullptr && !IsHistoryOf(analysisCase, history)) {
                return E_INVALIDARG;
            }
            return MakeStep({}, analysisCase, step, lateType.View());
        },
        In(history), In(analysisCase), Out(step), In(lateType));
}

}  // namespace hlx

HRESULT HLXStepUtils::AddStep(VEXUnicodeString name, VEXISamAnalysisCase* analysisCase,
                              VEXISamAnalysisSet*& step, VEXUnicodeString lateType)
{
    return vex::Probe<"HLXStepUtils::AddStep">(
        [&]() -> HRESULT {
            step = nullptr;
            return hlx::MakeStep(name.View(), analysisCase, step, lateType.View());
        },
        vex::In(name), vex::In(analysisCase), vex::Out(step), vex::In(lateType));
}
