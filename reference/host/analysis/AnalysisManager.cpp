// SPDX-License-Identifier: Apache-2.0
// The manager: its models, and the document manager that stands on the same feature.
#include "host/analysis/AnalysisAdapters.h"
#include "host/analysis/AnalysisObjects.h"
#include "host/system/Probe.h"

namespace vex {

HRESULT AnalysisManagerAdapter::GetCurrentAnalysisModel(VEXISamAnalysisModel*& model) const
{
    return Probe<"VEXISamAnalysisManager::GetCurrentAnalysisModel">(
        [&]() -> HRESULT {
            model = FaceOf<VEXISamAnalysisModel>(Self().Target("CurrentModel")).Detach();
            return model == nullptr ? E_FAIL : S_OK;
        },
        Out(model));
}

HRESULT AnalysisManagerAdapter::GetAllAnalysisModels(VEXListValVEXBaseUnknown_var& models) const
{
    return Probe<"VEXISamAnalysisManager::GetAllAnalysisModels">(
        [&] { return AppendChildren<VEXISamAnalysisModel>(Self(), models); }, Out(models));
}

HRESULT
AnalysisManagerAdapter::GetDocumentManager(VEXISamDocumentManager_var& documentManager) const
{
    return Probe<"VEXISamAnalysisManager::GetDocumentManager">(
        [&]() -> HRESULT {
            const Feature* const self = Self().Tree() == nullptr ? nullptr : &Self();
            documentManager = FaceOf<VEXISamDocumentManager>(self);
            return documentManager == nullptr ? E_FAIL : S_OK;
        },
        Out(documentManager));
}

}  // namespace vex
