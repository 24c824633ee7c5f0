// SPDX-License-Identifier: Apache-2.0
// Features through their interfaces. A feature that is gone (deleted, or its document removed)
// answers failure or nothing.
#include "host/feature/FeatureAdapters.h"

#include "host/feature/AttributeValues.h"
#include "host/feature/FeatureTree.h"
#include "host/feature/Refusal.h"
#include "host/feature/SpecAttribute.h"
#include "host/system/Probe.h"

namespace vex {

namespace {

void AppendDescendants(const Feature& root, std::vector<Feature*>& descendants)
{
    for (Feature* const child : root.Children()) {
        FeatureTree::Walk(*child, [&](Feature& feature, int) { descendants.push_back(&feature); });
    }
}

/// What stands below a container and has the interface of that name.
std::vector<Feature*> Members(const Feature& container, const char* interfaceName)
{
    std::vector<Feature*> members;
    if (container.Tree() != nullptr) {
        AppendDescendants(container, members);
        KeepImplementing(interfaceName, members);
    }
    return members;
}

}  // namespace

void KeepImplementing(const char* interfaceName, std::vector<Feature*>& features)
{
    if (interfaceName == nullptr) {
        features.clear();
        return;
    }
    const IID iid = VEXGuidOfName(interfaceName);
    std::erase_if(features,
                  [&](const Feature* feature) { return feature->Type().Find(iid) == nullptr; });
}

// ---- VEXISpecObject ----

VEXUnicodeString SpecObjectAdapter::GetType() const
{
    return Probe<"VEXISpecObject::GetType">([&] {
        return Self().Tree() == nullptr ? VEXUnicodeString() : VEXUnicodeString(Self().Kind().name);
    });
}

VEXISpecObject_var SpecObjectAdapter::GetFather() const
{
    return Probe<"VEXISpecObject::GetFather">(
        [&] { return FaceOf<VEXISpecObject>(Self().Parent()); });
}

VEXListPtrVEXISpecAttribute* SpecObjectAdapter::ListAttributes(const VEXUnicodeString& type,
                                                               const VEXUnicodeString& role,
                                                               const VEXUnicodeString& facet) const
{
    return Probe<"VEXISpecObject::ListAttributes">(
        [&]() -> VEXListPtrVEXISpecAttribute* {
            if (Self().Tree() == nullptr) {
                return nullptr;
            }
            auto* const list = new VEXListPtrVEXISpecAttribute;
            int index = 0;
            for (const AttributeDefinition& attribute : Self().Kind().attributes) {
                if (type.IsEmpty() || type.View() == TypeNameOf(attribute.kind)) {
                    list->Append((new SpecAttribute(Self(), index))->Face<VEXISpecAttribute>());
                }
                ++index;
            }
            return list;
        },
        In(type), In(role), In(facet));
}

// ---- VEXISpecAttrAccess ----

HRESULT AttributeAccessAdapter::Find(const VEXISpecAttrKey_var& key, ValueKind kind, int context,
                                     const SpecAttribute*& attribute) const
{
    if (Self().Tree() == nullptr) {
        return E_FAIL;
    }
    attribute = ComponentBehind<SpecAttribute>(key.Get());
    const bool fits = attribute != nullptr && attribute->IsOf(Self()) && attribute->Kind() == kind;
    return fits && context == 0 ? S_OK : E_INVALIDARG;
}

VEXISpecAttrKey_var AttributeAccessAdapter::GetAttrKey(const VEXUnicodeString& name) const
{
    return Probe<"VEXISpecAttrAccess::GetAttrKey">(
        [&]() -> VEXISpecAttrKey_var {
            const int index = Self().Kind().IndexOf(name.View());
            if (Self().Tree() == nullptr || index < 0) {
                return {};
            }
            return VEXAdopt((new SpecAttribute(Self(), index))->Face<VEXISpecAttrKey>());
        },
        In(name));
}

HRESULT AttributeAccessAdapter::SetBoolean(const VEXISpecAttrKey_var& key, unsigned char value,
                                           int context)
{
    return Probe<"VEXISpecAttrAccess::SetBoolean">(
        [&] {
            const SpecAttribute* attribute = nullptr;
            const HRESULT result = Find(key, ValueKind::Boolean, context, attribute);
            return FAILED(result) ? result : SetFlag(Self(), attribute->Name(), value);
        },
        In(key), In(value), In(context));
}

HRESULT AttributeAccessAdapter::GetBoolean(const VEXISpecAttrKey_var& key, unsigned char& value,
                                           int context) const
{
    return Probe<"VEXISpecAttrAccess::GetBoolean">(
        [&] {
            value = 0;
            const SpecAttribute* attribute = nullptr;
            const HRESULT result = Find(key, ValueKind::Boolean, context, attribute);
            return FAILED(result) ? result : GetFlag(Self(), attribute->Name(), value);
        },
        In(key), Out(value), In(context));
}

// ---- VEXIAlias ----

HRESULT AliasAdapter::SetAlias(const VEXUnicodeString& name)
{
    return Probe<"VEXIAlias::SetAlias">([&] { return Self().SetAlias(name.View()); }, In(name));
}

VEXUnicodeString AliasAdapter::GetAlias() const
{
    return Probe<"VEXIAlias::GetAlias">(
        [&] { return VEXUnicodeString(std::string(Self().Alias())); });
}

// ---- VEXINavigateObject ----

VEXListValVEXBaseUnknown_var* NavigateAdapter::GetChildren() const
{
    return Probe<"VEXINavigateObject::GetChildren">([&]() -> VEXListValVEXBaseUnknown_var* {
        if (Self().Tree() == nullptr) {
            return nullptr;
        }
        auto* const children = new VEXListValVEXBaseUnknown_var;
        for (const Feature* const child : Self().Children()) {
            if (const VEXISpecObject_var object = FaceOf<VEXISpecObject>(child)) {
                children->Append(object);
            }
        }
        return children;
    });
}

HRESULT NavigateAdapter::GetSpecObject(VEXISpecObject*& feature) const
{
    return Probe<"VEXINavigateObject::GetSpecObject">(
        [&] {
            feature = Self().Tree() == nullptr ? nullptr : FaceOf<VEXISpecObject>(&Self()).Detach();
            return feature == nullptr ? E_FAIL : S_OK;
        },
        Out(feature));
}

// ---- VEXIDescendants ----

bool DescendantsAdapter::AppendBelow(std::vector<Feature*>& below, std::string& /*error*/) const
{
    AppendDescendants(Self(), below);
    return true;
}

HRESULT DescendantsAdapter::GetAllChildren(const char* interfaceName,
                                           VEXListValVEXISpecObject_var& descendants) const
{
    return Probe<"VEXIDescendants::GetAllChildren">(
        [&] {
            if (Self().Tree() == nullptr) {
                return E_FAIL;
            }
            std::vector<Feature*> below;
            std::string error;
            if (!AppendBelow(below, error)) {
                return Refuse(E_FAIL, error);
            }
            KeepImplementing(interfaceName, below);
            for (const Feature* const feature : below) {
                descendants.Append(FaceOf<VEXISpecObject>(feature));
            }
            return S_OK;
        },
        In(interfaceName), Out(descendants));
}

// ---- VEXIContainer ----

int ContainerAdapter::GetMemberCount(const char* interfaceName) const
{
    return Probe<"VEXIContainer::GetMemberCount">(
        [&] { return static_cast<int>(Members(Self(), interfaceName).size()); }, In(interfaceName));
}

VEXListValVEXBaseUnknown_var* ContainerAdapter::ListMembers(const char* interfaceName) const
{
    return Probe<"VEXIContainer::ListMembers">(
        [&]() -> VEXListValVEXBaseUnknown_var* {
            if (Self().Tree() == nullptr) {
                return nullptr;
            }
            auto* const list = new VEXListValVEXBaseUnknown_var;
            for (Feature* const member : Members(Self(), interfaceName)) {
                list->Append(VEXShare<VEXBaseUnknown>(member));
            }
            return list;
        },
        In(interfaceName));
}

// ---- rows ----

namespace {

constexpr VEXInterfaceRow featureRows[] = {InterfaceRow<SpecObjectAdapter>(),
                                           InterfaceRow<AttributeAccessAdapter>(),
                                           InterfaceRow<AliasAdapter>()};
constexpr VEXInterfaceRow containerRows[] = {InterfaceRow<ContainerAdapter>(),
                                             InterfaceRow<DescendantsAdapter>()};
constexpr VEXInterfaceRow specAttributeRows[] = {InterfaceRow<SpecAttributeAdapter>(),
                                                 InterfaceRow<SpecAttrKeyAdapter>()};

}  // namespace

constinit const std::span<const VEXInterfaceRow> featureInterfaces = featureRows;
constinit const std::span<const VEXInterfaceRow> containerInterfaces = containerRows;
constinit const std::span<const VEXInterfaceRow> specAttributeInterfaces = specAttributeRows;

}  // namespace vex
