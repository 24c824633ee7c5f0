// SPDX-License-Identifier: Apache-2.0
// Cases and element behaviours through their interfaces.
#include "product/cases/AnalysisCaseAdapters.h"

#include "host/analysis/AnalysisObjects.h"
#include "host/system/Probe.h"
#include "product/cases/AnalysisCaseBuilder.h"
#include "product/cases/AnalysisDocuments.h"

namespace hlx {

using vex::In;
using vex::Out;
using vex::Probe;

HRESULT AnalysisCaseAdapter::GetAnalysisType(analysisTypeEnum& type) const
{
    return Probe<"HLXIAnalysisCase::GetAnalysisType">(
        [&]() -> HRESULT {
            if (Self().Tree() == nullptr) {
                return E_FAIL;
            }
            const std::int64_t stored = Self().GetAs<std::int64_t>("AnalysisType");
            if (stored < StructuralAnalysis || stored > FrequencyAnalysis) {
                return E_FAIL;
            }
            type = static_cast<analysisTypeEnum>(stored);
            return S_OK;
        },
        Out(type));
}

HRESULT AnalysisCaseFactory::CreateAnalysisCase(VEXISamAnalysisCase*& analysisCase,
                                                VEXDocument* document,
                                                HLXIAnalysisCase::analysisTypeEnum type)
{
    return Probe<"HLXIHacAnalysisCaseFact::CreateAnalysisCase">(
        [&]() -> HRESULT {
            analysisCase = nullptr;
            const vex::Document* const owner = AnalysisDocument(document);
            if (owner == nullptr || type < HLXIAnalysisCase::StructuralAnalysis ||
                type > HLXIAnalysisCase::FrequencyAnalysis) {
                return E_INVALIDARG;
            }
            vex::Feature* const model = CurrentModelOf(*owner);
            if (model == nullptr) {
                return E_FAIL;
            }
            const vex::Feature& made = AddAnalysisCase(*model, type);
            analysisCase = vex::FaceOf<VEXISamAnalysisCase>(&made).Detach();
            return S_OK;
        },
        Out(analysisCase), In(vex::DocumentArgument{document}), In(type));
}

HRESULT ElementBehaviorFactory::CreateElementBehavior(VEXISamAnalysisCase*& analysisCase)
{
    return Probe<"HLXIElementBehaviorFact::CreateElementBehavior">(
        [&]() -> HRESULT {
            vex::Feature* const feature = vex::FeatureBehind(analysisCase);
            if (feature == nullptr || !vex::Offers<HLXIAnalysisCase>(*feature)) {
                return E_INVALIDARG;
            }
            AddElementBehavior(*feature);
            return S_OK;
        },
        In(analysisCase));
}

}  // namespace hlx
