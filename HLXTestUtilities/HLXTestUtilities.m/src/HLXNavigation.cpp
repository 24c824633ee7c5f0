// SPDX-License-Identifier: Apache-2.0
// Steps of the way through a document that test case and static utilities have in common.
#include "HLXNavigation.h"

#include <memory>

long HLXNavigation::FindAnalysisManager(VEXDocument* document,
                                        VEXISamAnalysisContainer_var& container,
                                        VEXISamAnalysisManager_var& manager, const char*& message)
{
    message = nullptr;
    const VEXISamAccess_var access = VEXShare(document);
    if (access == nullptr) {
        message = "**********ERROR in getting the FEM";
        return E_FAIL;
    }
    VEXIContainer* specContainer = nullptr;
    long rc = access->GetSpecContainer(specContainer);
    if (FAILED(rc)) {
        message =
            "**********ERROR in getting the "
            "Spec Container";
        return rc;
    }
    container = VEXAdopt(specContainer);
    if (container == nullptr) {
        message = "**********ERROR in getting the Analysis Container";
        return E_FAIL;
    }
    rc = container->GetAnalysisManager(manager);
    if (FAILED(rc)) message = "**********ERROR in getting the Analysis Manager";
    return rc;
}

long HLXNavigation::ListLinkedDocuments(const VEXISamDocumentManager_var& documentManager,
                                        VEXListPtrVEXDocument& documents)
{
    return documentManager ? documentManager->GetLinkedDocuments(documents) : S_OK;
}

int HLXNavigation::TakeFirstRoot(VEXIDocRoots* roots, VEXIProduct_var& product)
{
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> list(roots ? roots->GetRoots() : nullptr);
    if (list == nullptr || list->Size() == 0) return 0;
    product = (*list)[1];
    return 1;
}
