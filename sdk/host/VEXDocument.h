// SPDX-License-Identifier: Apache-2.0
// A document of the session: product, part or analysis. Reached and removed through
// VEXDocumentServices, which own it. Its contents are reached by queries: VEXISamAccess of an
// analysis document, VEXIDocRoots of product and part documents, VEXIContainerOfDocument of all
// three.
#pragma once

#include "VEXUnicodeString.h"
#include "VEXVar.h"

/// Names of ours: StorageName, GetType.
class VEXDocument : public VEXBaseUnknown
{
public:
    /// Full path under which the document is stored; empty for a new one that has not been saved.
    virtual VEXUnicodeString StorageName() const = 0;

    /// Type, which is also the file ending: "VEXAnalysis", "VEXProduct" or "VEXPart".
    virtual VEXUnicodeString GetType() const = 0;
};

VEX_INTERFACE(VEXDocument);
