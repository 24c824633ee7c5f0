// SPDX-License-Identifier: Apache-2.0
// Entities: what is applied to a region of the model in a step, such as a load or a boundary
// condition. Their parameters and their supports.
#pragma once

#include "VEXFeatures.h"
#include "VEXProductStructure.h"

/// A number of an entity that can be valued on its own. It holds its entity: a parameter whose
/// entity is gone answers failure. Names of ours: all.
class VEXIParameter : public VEXBaseUnknown
{
public:
    /// Gives the entity another value.
    /// @param value  in the units of the document
    /// @return S_OK; E_INVALIDARG for a value that is not finite (the old one stays); E_FAIL when
    /// the entity is gone
    virtual HRESULT Valuate(double value) = 0;

    /// The value; the catalogue's default when none was given.
    /// @return S_OK; E_FAIL, and 0, when the entity is gone
    virtual HRESULT GetValue(double& value) const = 0;
};

VEX_INTERFACE(VEXIParameter);

/// Numbers of an entity that belong together, such as the components of a vector. It holds its
/// entity, as VEXIParameter does. Names of ours: all.
class VEXIVectorParameter : public VEXBaseUnknown
{
public:
    /// Gives one component another value.
    /// @param value   in the unit
    /// @param unit    empty: the units of the document; there are no others
    /// @param row     the component, from 1
    /// @param column  1: a vector has one column
    /// @param option  0; there are no others
    /// @return S_OK; E_INVALIDARG for a value that is not finite (the old one stays), another unit,
    /// no such component, another option; E_FAIL when the entity is gone
    virtual HRESULT SetComponent(double value, const VEXUnicodeString& unit, int row, int column,
                                 int option) = 0;

    /// One component; the catalogue's default when none was given.
    /// @param value  receives it; 0 on failure
    /// @return S_OK; E_INVALIDARG for no such component; E_FAIL when the entity is gone
    virtual HRESULT GetComponent(double& value, int row, int column) const = 0;
};

VEX_INTERFACE(VEXIVectorParameter);

/// An entity by what it is made of. Names of ours: GetVectorParameter.
class VEXISamAnalysisEntity : public VEXBaseUnknown
{
public:
    /// Finds a vector parameter: an attribute of kind "list" whose default tells how many
    /// components it has; a list that is empty by default is none.
    /// @param name       of the attribute, such as "DisplBCTrans"
    /// @param parameter  receives it; empty on failure
    /// @return S_OK; E_FAIL when there is none of that name or the entity is gone
    virtual HRESULT GetVectorParameter(const VEXUnicodeString& name,
                                       VEXIVectorParameter_var& parameter) = 0;
};

VEX_INTERFACE(VEXISamAnalysisEntity);

/// One support of an entity, a feature below it: geometry of a part, told by the part's document,
/// what it is of it and the digest of the shape that it was taken from. Names of ours: all.
class VEXISamSupport : public VEXBaseUnknown
{
public:
    /// The geometry, found again in the part. The part's document is opened when it is not open,
    /// and gets an access when it has none to the cell. As long as somebody holds the part's body,
    /// the shape is not read again for the next support.
    /// @param geometry  receives a B-rep access to a face, edge or vertex, or the body's feature
    ///                  (VEXIMechanicalTool, VEXIBodyRequest); empty on failure
    /// @return S_OK; E_FAIL when the support is gone or, with the reason on standard error, when
    /// the part cannot be opened or its shape is not the one that the support was taken from: it
    /// never is other geometry
    virtual HRESULT GetGeometry(VEXILinkableObject_var& geometry) const = 0;

    /// The connector kind it was added with.
    virtual VEXUnicodeString GetConnectorKind() const = 0;
};

VEX_INTERFACE(VEXISamSupport);

/// The supports of an entity. Names of ours: GetSupports, AddSupport.
class VEXISamAnalysisSupport : public VEXBaseUnknown
{
public:
    /// Appends the supports, in the order in which they were added.
    /// @return S_OK, also when there is none; E_FAIL when the entity is gone
    virtual HRESULT GetSupports(VEXListValVEXBaseUnknown_var& supports) const = 0;

    virtual HRESULT Reserved2() { return E_NOTIMPL; }

    /// Adds a support at the end; what was added before stays.
    /// @param geometry       the feature of a body (VEXIPartRequest::GetMainBody), a B-rep access,
    ///                       or a face, edge or vertex; of a part whose document has been stored
    /// @param part           the mechanical part that it is geometry of
    /// @param connectorKind  how the entity is connected to it: "GeometrySmartConnector", or empty
    ///                       where it acts on the point itself; other texts are kept as they are
    /// @return S_OK; E_INVALIDARG for an empty handle, other geometry, geometry of another part, a
    /// part that was never stored, or a kind that is not valid UTF-8; E_FAIL when the entity is
    /// gone or, with the reason on standard error, the geometry is no longer that of the part or
    /// the part has none
    virtual HRESULT AddSupport(const VEXILinkableObject_var& geometry,
                               const VEXISpecObject_var& part,
                               const VEXUnicodeString& connectorKind) = 0;
};

VEX_INTERFACE(VEXISamAnalysisSupport);
