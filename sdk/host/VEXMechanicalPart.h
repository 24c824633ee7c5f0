// SPDX-License-Identifier: Apache-2.0
// The way from a part document's container to the part's shape, and accesses to its cells that can
// be stored.
//
//   container of features -> mechanical part -> main body -> last shaped object -> VEXBody
//
// A view context names a view of the part: "" and "MfDefault3DView" both mean the part as it is
// modelled, in three dimensions; nothing can be seen in others.
#pragma once

#include "VEXFeatures.h"
#include "VEXTopology.h"

/// The container of features of a part document.
/// Names of ours: GetMechanicalPart.
class VEXIPrtContainer : public VEXBaseUnknown
{
public:
    /// The mechanical part feature; empty when there is none.
    virtual VEXISpecObject_var GetMechanicalPart() const = 0;
};

VEX_INTERFACE(VEXIPrtContainer);

/// What a mechanical part consists of.
/// Names of ours: GetMainBody.
class VEXIPartRequest : public VEXBaseUnknown
{
public:
    /// The main body, as a feature of the part.
    /// @param viewContext  "" or "MfDefault3DView"
    /// @param mainBody     receives it; empty on failure
    /// @return S_OK; E_FAIL in another view context, for a part without a body, and when the part
    /// is gone
    virtual HRESULT GetMainBody(const VEXUnicodeString& viewContext,
                                VEXISpecObject_var& mainBody) const = 0;
};

VEX_INTERFACE(VEXIPartRequest);

/// What a body of a part consists of.
/// Names of ours: GetResults.
class VEXIBodyRequest : public VEXBaseUnknown
{
public:
    /// Appends the features whose geometry is the body's result.
    /// @param viewContext  "" or "MfDefault3DView": another one appends nothing
    /// @return S_OK; E_FAIL when the body is gone
    virtual HRESULT GetResults(const VEXUnicodeString& viewContext,
                               VEXListValVEXBaseUnknown_var& results) const = 0;
};

VEX_INTERFACE(VEXIBodyRequest);

/// A body as what features of shape are added to.
/// Names of ours: GetLastShapedObject.
class VEXIMechanicalTool : public VEXBaseUnknown
{
public:
    /// The feature that gave the body its present shape; empty when there is none.
    virtual VEXISpecObject_var GetLastShapedObject() const = 0;
};

VEX_INTERFACE(VEXIMechanicalTool);

/// A feature that has a geometry.
/// Names of ours: GetBody.
class VEXIGeometricalElement : public VEXBaseUnknown
{
public:
    /// Its body, of the geometry that the part has now: the same object as long as somebody holds
    /// it. Empty, with the reason on standard error, when the part has no geometry or it cannot be
    /// read.
    virtual VEXBody_var GetBody() const = 0;
};

VEX_INTERFACE(VEXIGeometricalElement);

/// An access to a cell, a feature of the container of B-rep accesses: it can be linked to and is
/// stored with the part.
/// Names of ours: GetCell.
class VEXIBRepAccess : public VEXBaseUnknown
{
public:
    /// The cell, found again in the body.
    /// @param cell  receives it, owned by the body; empty on failure
    /// @param body  receives the body, which the caller holds as long as he uses the cell; as long
    ///              as somebody holds it, the shape is not read again for the next access
    /// @return S_OK; E_FAIL when the access is gone or, with the reason on standard error, when the
    /// shape is not the one that it was taken from: it never is another cell
    virtual HRESULT GetCell(VEXCell_var& cell, VEXBody_var& body) const = 0;
};

VEX_INTERFACE(VEXIBRepAccess);

/// The access to a cell, made in the container of B-rep accesses when it is not there yet.
/// @param container  of B-rep accesses, of the document that holds the body's part
/// @param cell       a face, edge or vertex of the body
/// @return empty when the container is another one, the cell is no face, edge or vertex of the
/// body, or one of the three is empty or gone
VEX_EXPORT VEXIBRepAccess_var VEXBRepDecode(const VEXIContainer_var& container,
                                            const VEXCell_var& cell, const VEXBody_var& body);
