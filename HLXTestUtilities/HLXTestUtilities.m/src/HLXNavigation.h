// SPDX-License-Identifier: Apache-2.0
// Steps of the way through a document that test case and static utilities have in common. They
// print nothing: what is said about a failure is their caller's.
#pragma once

#include "VEXAnalysisModel.h"

namespace HLXNavigation {

/// From a document to its analysis manager.
/// @param container  receives the analysis container; left as it is when the way ends before it
/// @param manager    receives the manager
/// @param message    receives what is to be said about the step that failed; null after success
/// @return the result of the last call; E_FAIL for an interface that is missing
long FindAnalysisManager(VEXDocument* document, VEXISamAnalysisContainer_var& container,
                         VEXISamAnalysisManager_var& manager, const char*& message);

/// The documents that the analysis of a document manager is linked to.
/// @return the platform's result; S_OK, and nothing listed, for an empty handle
long ListLinkedDocuments(const VEXISamDocumentManager_var& documentManager,
                         VEXListPtrVEXDocument& documents);

/// Casts the first root object of a document into `product`, empty when that is no product.
/// @return 1 when there is a root object, else 0: `product` is then left as it is
int TakeFirstRoot(VEXIDocRoots* roots, VEXIProduct_var& product);

}  // namespace HLXNavigation
