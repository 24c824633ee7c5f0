// SPDX-License-Identifier: Apache-2.0
// The interfaces that features have as features. Which late type has which of them stands in the
// component tables; other libraries' rows use these classes too.
#pragma once

#include "VEXFeatures.h"
#include "host/component/Adapter.h"
#include "host/feature/Feature.h"

#include <span>

namespace vex {

/// Features below `root`, each before those below it, that have the interface of that name; all are
/// handles to features.
void AppendMembers(const Feature& root, const char* interfaceName,
                   VEXListValVEXISpecObject_var& members);

/// A feature as a handle; empty for null.
VEX_EXPORT VEXISpecObject_var AsSpecObject(const Feature* feature);

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
