// SPDX-License-Identifier: Apache-2.0
// An interface of a component: a small object that forwards counting and queries to its component.
//
//   class AliasAdapter : public Adapter<VEXIAlias, Feature> { using Adapter::Adapter; … };
//   constexpr VEXInterfaceRow featureInterfaces[] = {InterfaceRow<VEXIAlias, AliasAdapter>()};
#pragma once

#include "host/component/Component.h"

namespace vex {

template <class Interface, class Implementation>
class Adapter : public Interface
{
public:
    using Face = Interface;

    explicit Adapter(VEXBaseUnknown& component) : _self(&static_cast<Implementation&>(component)) {}

    HRESULT QueryInterface(const IID& iid, void** object) const override
    {
        return _self->QueryInterface(iid, object);
    }
    HRESULT QueryInterface(const char* name, void** object) const override
    {
        return _self->QueryInterface(name, object);
    }
    unsigned long AddRef() const override { return _self->AddRef(); }
    unsigned long Release() const override { return _self->Release(); }
    VEXMetaClass* GetMetaObject() const override { return _self->GetMetaObject(); }
    const char* IsA() const override { return _self->IsA(); }
    int IsAKindOf(const char* name) const override { return _self->IsAKindOf(name); }
    VEXBaseUnknown* GetImpl() const override { return _self; }
    int IsNull() const override { return _self->IsNull(); }
    int IsEqual(const VEXBaseUnknown* other) const override { return _self->IsEqual(other); }

protected:
    Implementation& Self() const noexcept { return *_self; }

private:
    Implementation* _self;
};

template <class AdapterClass>
VEXBaseUnknown* MakeAdapter(VEXBaseUnknown& component)
{
    return new AdapterClass(component);
}

/// The table entry that offers an interface through an adapter class.
template <class AdapterClass>
constexpr VEXInterfaceRow InterfaceRow()
{
    return {VEXInterfaceTraits<typename AdapterClass::Face>::Name, &MakeAdapter<AdapterClass>};
}

}  // namespace vex
