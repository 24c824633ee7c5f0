// SPDX-License-Identifier: Apache-2.0
// Features: the objects of a document's tree, their attributes, names and containers.
#pragma once

#include "VEXLists.h"

class VEXDocument;
class VEXISpecObject;
VEX_INTERFACE(VEXISpecObject);

/// One attribute of a feature. Owned by the list it came in; see VEXISpecObject::ListAttributes.
/// Names of ours: GetName.
class VEXISpecAttribute : public VEXBaseUnknown
{
public:
    /// The object that a reference attribute holds, with a reference added that the caller
    /// releases; null for other kinds of attribute, for an empty reference and for one whose target
    /// was deleted.
    virtual VEXISpecObject* GetValueObject() const = 0;

    /// The attribute's name in the catalogue.
    virtual VEXUnicodeString GetName() const = 0;
};

VEX_INTERFACE(VEXISpecAttribute);

/// A feature of a document's tree.
/// Names of ours: GetFather.
class VEXISpecObject : public VEXBaseUnknown
{
public:
    /// The late type: the feature's type name in the catalogue.
    virtual VEXUnicodeString GetType() const = 0;

    /// The feature it stands under; empty for the root of a container.
    virtual VEXISpecObject_var GetFather() const = 0;

    /// The attributes whose kind has that type name ("VEXISpecObject": references; "boolean",
    /// "integer", "double", "string", "list", "table", "link"; empty: all), in catalogue order. The
    /// two texts are kept for filters by role and by facet: empty.
    /// @return a new list of counted attributes; the caller releases each and deletes the list.
    /// Null when the feature is gone.
    virtual VEXListPtrVEXISpecAttribute* ListAttributes(const VEXUnicodeString& type,
                                                        const VEXUnicodeString& role,
                                                        const VEXUnicodeString& facet) const = 0;
};

/// What tells an attribute of a feature in calls that set and give its value; a VEXISpecAttribute
/// is one too. Names of ours: all.
class VEXISpecAttrKey : public VEXBaseUnknown
{
public:
    /// The attribute's name in the catalogue.
    virtual VEXUnicodeString GetName() const = 0;
};

VEX_INTERFACE(VEXISpecAttrKey);

/// The values of a feature's attributes, by key. Names of ours: GetAttrKey, SetBoolean, GetBoolean.
class VEXISpecAttrAccess : public VEXBaseUnknown
{
public:
    /// The key of an attribute; empty when the feature has none of that name or is gone.
    virtual VEXISpecAttrKey_var GetAttrKey(const VEXUnicodeString& name) const = 0;

    /// Sets an attribute of kind "boolean".
    /// @param key      from GetAttrKey of this feature, or one of its listed attributes
    /// @param value    any byte but 0 is true
    /// @param context  0: the value holds wherever the feature is used; there are no others
    /// @return S_OK; E_INVALIDARG for an empty key or one of another feature or kind, and for
    /// another context; E_FAIL when the feature is gone
    virtual HRESULT SetBoolean(const VEXISpecAttrKey_var& key, unsigned char value,
                               int context) = 0;
    /// Gives the value of an attribute of kind "boolean".
    /// @param value  receives 0 or 1; 0 on failure
    /// @return as SetBoolean
    virtual HRESULT GetBoolean(const VEXISpecAttrKey_var& key, unsigned char& value,
                               int context) const = 0;
};

VEX_INTERFACE(VEXISpecAttrAccess);

/// The displayed name of a feature.
/// Names of ours: SetAlias.
class VEXIAlias : public VEXBaseUnknown
{
public:
    /// Gives the feature another name.
    /// @return S_OK; E_INVALIDARG for a text that is not valid UTF-8 (the name stays); E_FAIL when
    /// the feature is gone
    virtual HRESULT SetAlias(const VEXUnicodeString& name) = 0;

    /// The name; empty when none was set.
    virtual VEXUnicodeString GetAlias() const = 0;
};

VEX_INTERFACE(VEXIAlias);

/// An object whose children of a kind can be listed, at any depth below it.
/// Names of ours: GetAllChildren.
class VEXIDescendants : public VEXBaseUnknown
{
public:
    /// Appends the descendants that implement the named interface, each before those below it.
    /// @return S_OK; E_FAIL, nothing appended, when the object is gone or a linked document cannot
    /// be opened (reason on standard error)
    virtual HRESULT GetAllChildren(const char* interfaceName,
                                   VEXListValVEXISpecObject_var& descendants) const = 0;
};

VEX_INTERFACE(VEXIDescendants);

/// A root from which a feature tree can be shown.
/// Names of ours: GetChildren, GetSpecObject.
class VEXINavigateObject : public VEXBaseUnknown
{
public:
    /// The objects shown below this one, in order: a new list that the caller deletes; null when
    /// the object is gone.
    virtual VEXListValVEXBaseUnknown_var* GetChildren() const = 0;

    /// The object as the feature it is, with a reference added that the caller releases.
    virtual HRESULT GetSpecObject(VEXISpecObject*& feature) const = 0;
};

VEX_INTERFACE(VEXINavigateObject);

/// A container of features or of B-rep accesses in a document.
/// Names of ours: GetMemberCount, ListMembers.
class VEXIContainer : public VEXBaseUnknown
{
public:
    /// Number of objects in the container that implement the named interface.
    virtual int GetMemberCount(const char* interfaceName) const = 0;

    /// Those objects, in order: a new list that the caller deletes; null when the container is
    /// gone.
    virtual VEXListValVEXBaseUnknown_var* ListMembers(const char* interfaceName) const = 0;
};

VEX_INTERFACE(VEXIContainer);

/// The containers of a document.
/// Names of ours: GetSpecContainer, GetBRepContainer.
class VEXIContainerOfDocument : public VEXBaseUnknown
{
public:
    /// The container of features, with a reference added that the caller releases; null on failure.
    virtual HRESULT GetSpecContainer(VEXIContainer*& container) const = 0;

    /// The container of B-rep accesses, likewise.
    virtual HRESULT GetBRepContainer(VEXIContainer*& container) const = 0;
};

VEX_INTERFACE(VEXIContainerOfDocument);
