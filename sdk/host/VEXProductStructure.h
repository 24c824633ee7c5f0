// SPDX-License-Identifier: Apache-2.0
// Products, their children, and objects that other documents can link to.
#pragma once

#include "VEXFeatures.h"

/// A product: a node of the assembly structure.
/// Names of ours: GetChildren, GetPartNumber.
class VEXIProduct : public VEXBaseUnknown
{
public:
    /// The children that implement the named interface, in order: a new list that the caller
    /// deletes; null when the product is gone or the document it links to cannot be opened (reason
    /// on standard error).
    virtual VEXListValVEXBaseUnknown_var* GetChildren(const char* interfaceName) const = 0;

    /// Part number of the product, for example "Bracket".
    virtual VEXUnicodeString GetPartNumber() const = 0;
};

VEX_INTERFACE(VEXIProduct);

/// An object that features of other documents can refer to.
/// Names of ours: GetDocument.
class VEXILinkableObject : public VEXBaseUnknown
{
public:
    /// The document that holds the object, not counted; null when the object is gone.
    virtual VEXDocument* GetDocument() const = 0;
};

VEX_INTERFACE(VEXILinkableObject);

/// The root objects of a document.
/// Names of ours: GetRoots.
class VEXIDocRoots : public VEXBaseUnknown
{
public:
    /// A new list that the caller deletes; null when the document is gone.
    virtual VEXListValVEXBaseUnknown_var* GetRoots() const = 0;
};

VEX_INTERFACE(VEXIDocRoots);
