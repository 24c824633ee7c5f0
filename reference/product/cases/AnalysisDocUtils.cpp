// SPDX-License-Identifier: Apache-2.0
// What an analysis document holds, found without going through its interfaces one by one.
#include "HLXJobs.h"
#include "HLXProductUtilities.h"
#include "host/analysis/AnalysisObjects.h"
#include "host/system/Probe.h"
#include "host/system/Texts.h"
#include "product/cases/AnalysisCaseBuilder.h"
#include "product/cases/AnalysisDocuments.h"
#include "product/cases/InitialStep.h"

using hlx::AnalysisDocument;
using vex::Document;
using vex::DocumentArgument;
using vex::Feature;
using vex::In;
using vex::Out;
using vex::Probe;

namespace {

/// As GetAllAnalysisCases.
HRESULT AppendAllCases(const VEXDocument* document, VEXListValVEXBaseUnknown_var& cases)
{
    const Document* const found = AnalysisDocument(document);
    if (found == nullptr) {
        return E_INVALIDARG;
    }
    const Feature* const manager = vex::AnalysisManagerOf(*found);
    if (manager == nullptr) {
        return E_FAIL;
    }
    for (const Feature* const model : manager->Children()) {
        if (vex::Offers<VEXISamAnalysisModel>(*model)) {
            vex::AppendChildren<VEXISamAnalysisCase>(*model, cases);
        }
    }
    return S_OK;
}

bool IsOfType(const VEXBaseUnknown_var& set, const VEXUnicodeString& lateType)
{
    const Feature* const feature = vex::FeatureBehind(set.Get());
    return feature != nullptr && (lateType.IsEmpty() || feature->Kind().IsKindOf(lateType.View()));
}

}  // namespace

HRESULT HLXAnalysisDocUtils::GetAnalysisManager(VEXISamAnalysisManager_var& manager,
                                                const VEXDocument* document)
{
    return Probe<"HLXAnalysisDocUtils::GetAnalysisManager">(
        [&]() -> HRESULT {
            manager.Reset();
            const Document* const found = AnalysisDocument(document);
            if (found == nullptr) {
                return E_INVALIDARG;
            }
            manager = vex::FaceOf<VEXISamAnalysisManager>(vex::AnalysisManagerOf(*found));
            return manager == nullptr ? E_FAIL : S_OK;
        },
        Out(manager), In(DocumentArgument{document}));
}

HRESULT HLXAnalysisDocUtils::GetAllAnalysisCases(VEXListValVEXBaseUnknown_var& cases,
                                                 VEXDocument* document)
{
    return Probe<"HLXAnalysisDocUtils::GetAllAnalysisCases">(
        [&] { return AppendAllCases(document, cases); }, Out(cases),
        In(DocumentArgument{document}));
}

HRESULT HLXAnalysisDocUtils::GetAnalysisSets(VEXListValVEXBaseUnknown_var& sets,
                                             VEXDocument* document, VEXUnicodeString lateType)
{
    return Probe<"HLXAnalysisDocUtils::GetAnalysisSets">(
        [&]() -> HRESULT {
            VEXListValVEXBaseUnknown_var cases;
            VEXListValVEXBaseUnknown_var all;
            HRESULT result = AppendAllCases(document, cases);
            for (int i = 1; SUCCEEDED(result) && i <= cases.Size(); ++i) {
                result = VEXISamAnalysisCase_var(cases[i])->GetAnalysisSets(all);
            }
            for (int i = 1; SUCCEEDED(result) && i <= all.Size(); ++i) {
                if (IsOfType(all[i], lateType)) {
                    sets.Append(all[i]);
                }
            }
            return result;
        },
        Out(sets), In(DocumentArgument{document}), In(lateType));
}

HRESULT HLXAnalysisDocUtils::ValidateStep(VEXISamAnalysisSet*& step,
                                          const VEXUnicodeString& containerLateType,
                                          VEXUnicodeString& stepName, unsigned char make,
                                          VEXDocument* document)
{
    return Probe<"HLXAnalysisDocUtils::ValidateStep">(
        [&]() -> HRESULT {
            step = nullptr;
            const Document* const found = AnalysisDocument(document);
            if (found == nullptr ||
                !(containerLateType.IsEmpty() || hlx::IsInInitialSteps(containerLateType.View())) ||
                !vex::text::IsValid(stepName.View())) {
                return E_INVALIDARG;
            }
            Feature* const model = hlx::CurrentModelOf(*found);
            Feature* const analysisCase =
                model == nullptr ? nullptr : vex::FirstChild<VEXISamAnalysisCase>(*model);
            const Feature* const initial =
                analysisCase == nullptr
                    ? nullptr
                    : hlx::FindInitialStep(*analysisCase,
                                           {containerLateType.View(), stepName.View(), make != 0});
            step = vex::FaceOf<VEXISamAnalysisSet>(initial).Detach();
            if (step == nullptr) {
                return E_FAIL;
            }
            stepName = VEXUnicodeString(std::string(initial->Alias()));
            return S_OK;
        },
        Out(step), In(containerLateType), Out(stepName), In(make), In(DocumentArgument{document}));
}

HRESULT HLXAnalysisDocUtils::GetJobs(const VEXListValVEXBaseUnknown_var& cases,
                                     VEXListValVEXBaseUnknown_var& jobs)
{
    return Probe<"HLXAnalysisDocUtils::GetJobs">(
        [&]() -> HRESULT {
            std::vector<const Feature*> found;
            for (int i = 1; i <= cases.Size(); ++i) {
                const Feature* const feature = vex::FeatureBehind(cases[i].Get());
                if (feature == nullptr || !vex::Offers<VEXISamAnalysisCase>(*feature)) {
                    return E_INVALIDARG;
                }
                found.push_back(feature);
            }
            for (const Feature* const analysisCase : found) {
                for (const Feature* const container : analysisCase->Children()) {
                    if (vex::Offers<HLXIJobFactory>(*container)) {
                        vex::AppendChildren<HLXIJob>(*container, jobs);
                    }
                }
            }
            return S_OK;
        },
        In(cases), Out(jobs));
}

VEXDocument* HLXAnalysisDocUtils::GetDocument(const VEXISamAnalysisCase_var& analysisCase)
{
    return Probe<"HLXAnalysisDocUtils::GetDocument">(
        [&]() -> VEXDocument* {
            const Document* const owner = Document::OwnerOf(analysisCase.Get());
            return owner == nullptr ? nullptr : owner->AsVEXDocument();
        },
        In(analysisCase));
}
