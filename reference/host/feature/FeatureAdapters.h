// SPDX-License-Identifier: Apache-2.0
// The interfaces that features have as features. Which late type has which of them stands in the
// component tables; other libraries' rows use these classes too.
#pragma once

#include "VEXFeatures.h"
#include "host/component/Adapter.h"
#include "host/feature/Feature.h"

#include <span>
#include <string>
#include <vector>

namespace vex {

class SpecAttribute;

/// Removes the features whose component lacks the interface of that name; null: all.
VEX_EXPORT void KeepImplementing(const char* interfaceName, std::vector<Feature*>& features);

class VEX_EXPORT SpecObjectAdapter : public Adapter<VEXISpecObject, Feature>
{
public:
    using Adapter::Adapter;
    VEXUnicodeString GetType() const override;
    VEXISpecObject_var GetFather() const override;
    VEXListPtrVEXISpecAttribute* ListAttributes(const VEXUnicodeString& type,
                                                const VEXUnicodeString& role,
                                                const VEXUnicodeString& facet) const override;
};

class VEX_EXPORT AttributeAccessAdapter : public Adapter<VEXISpecAttrAccess, Feature>
{
public:
    using Adapter::Adapter;
    VEXISpecAttrKey_var GetAttrKey(const VEXUnicodeString& name) const override;
    HRESULT SetBoolean(const VEXISpecAttrKey_var& key, unsigned char value, int context) override;
    HRESULT GetBoolean(const VEXISpecAttrKey_var& key, unsigned char& value,
                       int context) const override;

private:
    /// The attribute of this feature that a key is of. @return S_OK; E_INVALIDARG; E_FAIL
    HRESULT Find(const VEXISpecAttrKey_var& key, ValueKind kind, int context,
                 const SpecAttribute*& attribute) const;
};

class VEX_EXPORT AliasAdapter : public Adapter<VEXIAlias, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT SetAlias(const VEXUnicodeString& name) override;
    VEXUnicodeString GetAlias() const override;
};

class VEX_EXPORT NavigateAdapter : public Adapter<VEXINavigateObject, Feature>
{
public:
    using Adapter::Adapter;
    VEXListValVEXBaseUnknown_var* GetChildren() const override;
    HRESULT GetSpecObject(VEXISpecObject*& feature) const override;
};

class VEX_EXPORT DescendantsAdapter : public Adapter<VEXIDescendants, Feature>
{
public:
    using Adapter::Adapter;
    HRESULT GetAllChildren(const char* interfaceName,
                           VEXListValVEXISpecObject_var& descendants) const override;

protected:
    /// Appends what stands below the feature, each before what is below it. False with the reason
    /// in `error`.
    virtual bool AppendBelow(std::vector<Feature*>& below, std::string& error) const;
};

class VEX_EXPORT ContainerAdapter : public Adapter<VEXIContainer, Feature>
{
public:
    using Adapter::Adapter;
    int GetMemberCount(const char* interfaceName) const override;
    VEXListValVEXBaseUnknown_var* ListMembers(const char* interfaceName) const override;
};

/// Rows: of the component VEXFeature, which every late type extends; of containers; of one
/// attribute (VEXSpecAttribute).
VEX_EXPORT extern const std::span<const VEXInterfaceRow> featureInterfaces;
VEX_EXPORT extern const std::span<const VEXInterfaceRow> containerInterfaces;
VEX_EXPORT extern const std::span<const VEXInterfaceRow> specAttributeInterfaces;

}  // namespace vex
