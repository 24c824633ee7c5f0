// SPDX-License-Identifier: Apache-2.0
// Managers, models and roots of a document, each handle tested: an operation of the platform may
// succeed without a result.
#include "DocumentContents.h"

#include "HLXProductUtilities.h"
#include "Messages.h"

#include <memory>

namespace hlx {

VEXISamAnalysisManager_var AnalysisManagerOf(const VEXDocument& document)
{
    VEXISamAnalysisManager_var manager;
    if (FAILED(HLXAnalysisDocUtils::GetAnalysisManager(manager, &document)) || !manager) {
        Report("the analysis manager of the document cannot be had");
        return {};
    }
    return manager;
}

VEXISamDocumentManager_var DocumentManagerOf(const VEXISamAnalysisManager& manager)
{
    VEXISamDocumentManager_var documentManager;
    if (FAILED(manager.GetDocumentManager(documentManager)) || !documentManager) {
        Report("the links of the document cannot be had");
        return {};
    }
    return documentManager;
}

bool AppendModels(const VEXISamAnalysisManager& manager, VEXListValVEXBaseUnknown_var& models)
{
    return SUCCEEDED(manager.GetAllAnalysisModels(models)) ||
           Report("the models of the document cannot be read");
}

bool AppendRoots(VEXDocument& document, VEXListValVEXBaseUnknown_var& roots)
{
    const VEXIDocRoots_var docRoots = VEXShare(&document);
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> list(docRoots ? docRoots->GetRoots()
                                                                      : nullptr);
    if (list == nullptr) {
        return Report("the root objects of the document cannot be read");
    }
    roots.Append(*list);
    return true;
}

}  // namespace hlx
