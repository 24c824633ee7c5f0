// SPDX-License-Identifier: Apache-2.0
// Base of the objects behind interfaces. A component has one row of the component table, which says
// what interfaces it offers; each interface is an adapter (Adapter.h), made when first asked for,
// owned by the component and freed when the last outside reference goes.
#pragma once

#include "VEXBaseUnknown.h"
#include "host/component/ComponentTypes.h"

#include <cstdint>
#include <vector>

namespace vex {

class VEX_EXPORT Component : public VEXBaseUnknown
{
public:
    /// @param type  its row; never null. `initialCount` 0 is for components that a tree owns.
    explicit Component(const ComponentType& type, std::uint32_t initialCount = 1) noexcept;
    ~Component() override;

    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;

    HRESULT QueryInterface(const IID& iid, void** object) const override;
    HRESULT QueryInterface(const char* interfaceName, void** object) const override;
    unsigned long AddRef() const override;
    unsigned long Release() const override;

    /// Class name or late type; here the name of its row.
    const char* IsA() const override;
    int IsAKindOf(const char* name) const override;
    VEXMetaClass* GetMetaObject() const override;

    const ComponentType& Type() const noexcept { return *_type; }

    /// The run-time class of the components of a row.
    static VEXMetaClass* MetaObjectOf(const ComponentType& type);

    /// The adapter for an interface, not counted and not probed; null when the row lacks it.
    VEXBaseUnknown* FindInterface(const IID& iid) const;

    /// As FindInterface, typed.
    template <class Interface>
    Interface* Face() const
    {
        return static_cast<Interface*>(FindInterface(VEXInterfaceTraits<Interface>::Id));
    }

    /// Says that one of its references is the host's own (`kept`), or no longer: accounts of what a
    /// program holds leave that one out.
    void KeepByHost(bool kept) noexcept;

protected:
    /// The last outside reference has gone and the adapters are freed. The base deletes the
    /// component.
    virtual void OnUnreferenced() const;

private:
    void FreeAdapters() const;

    struct Bound
    {
        IID id;
        VEXBaseUnknown* adapter;
    };
    VEXBaseUnknown* FindBound(const IID& iid) const
    {
        for (const Bound& bound : _adapters) {
            if (bound.id == iid) {
                return bound.adapter;
            }
        }
        return nullptr;
    }

    std::uint32_t _hostReferences = 0;
    const ComponentType* _type;
    mutable std::vector<Bound> _adapters;
};

/// The component of a kind behind an interface; null when there is none, or another one.
template <class Kind>
Kind* ComponentBehind(const VEXBaseUnknown* object)
{
    return object == nullptr ? nullptr : dynamic_cast<Kind*>(object->GetImpl());
}

}  // namespace vex
