// SPDX-License-Identifier: Apache-2.0
// Models, cases and sets: what each lists.
#include "host/analysis/AnalysisAdapters.h"
#include "host/analysis/AnalysisObjects.h"
#include "host/system/Probe.h"

namespace vex {

HRESULT AnalysisModelAdapter::GetAnalysisCases(VEXListValVEXBaseUnknown_var& cases) const
{
    return Probe<"VEXISamAnalysisModel::GetAnalysisCases">(
        [&] { return AppendChildren<VEXISamAnalysisCase>(Self(), cases); }, Out(cases));
}

HRESULT AnalysisModelAdapter::GetMeshNegotiator(VEXISamMeshNegotiator*& negotiator) const
{
    return Probe<"VEXISamAnalysisModel::GetMeshNegotiator">(
        [&]() -> HRESULT {
            const Feature* const self = Self().Tree() == nullptr ? nullptr : &Self();
            negotiator = FaceOf<VEXISamMeshNegotiator>(self).Detach();
            return negotiator == nullptr ? E_FAIL : S_OK;
        },
        Out(negotiator));
}

HRESULT AnalysisCaseAdapter::GetAnalysisSets(VEXListValVEXBaseUnknown_var& sets) const
{
    return Probe<"VEXISamAnalysisCase::GetAnalysisSets">(
        [&]() -> HRESULT {
            if (Self().Tree() == nullptr) {
                return E_FAIL;
            }
            for (Feature* const child : Self().Children()) {
                if (Offers<VEXISamAnalysisSet>(*child)) {
                    sets.Append(HandleOf(child));
                } else {
                    AppendChildren<VEXISamAnalysisSet>(*child, sets);
                }
            }
            return S_OK;
        },
        Out(sets));
}

HRESULT AnalysisSetAdapter::GetAnalysisFeatures(const VEXUnicodeString& lateType,
                                                VEXListValVEXBaseUnknown_var& features) const
{
    return Probe<"VEXISamAnalysisSet::GetAnalysisFeatures">(
        [&]() -> HRESULT {
            if (Self().Tree() == nullptr) {
                return E_FAIL;
            }
            FeatureTree::Walk(Self(), [&](Feature& feature, int depth) {
                if (depth > 0 && (lateType.IsEmpty() || feature.Kind().IsKindOf(lateType.View()))) {
                    features.Append(HandleOf(&feature));
                }
            });
            return S_OK;
        },
        In(lateType), Out(features));
}

}  // namespace vex
