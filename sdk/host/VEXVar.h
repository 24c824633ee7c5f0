// SPDX-License-Identifier: Apache-2.0
// Reference-counted interface handles. `VEXIAlias_var` is VEXVar<VEXIAlias>, and so on for every
// interface.
//
// Ownership shows where a handle is made from a pointer: VEXAdopt takes over a reference that the
// caller owns, VEXShare adds one of its own. Assigning from a handle of another interface casts; a
// cast that fails leaves the handle empty. From the same or a derived type it only counts.
#pragma once

#include "VEXBaseUnknown.h"

#include <type_traits>
#include <utility>

/// Ends the process with a message that names the interface: `->` on an empty handle is a
/// programming error. Name of ours.
[[noreturn]] VEX_EXPORT void VEXUseOfEmptyHandle(const char* interfaceName);

template <class Interface>
class VEXVar
{
public:
    VEXVar() noexcept = default;
    VEXVar(std::nullptr_t) noexcept {}

    VEXVar(const VEXVar& other) noexcept : _pointer(other._pointer)
    {
        if (_pointer != nullptr) {
            _pointer->AddRef();
        }
    }

    VEXVar(VEXVar&& other) noexcept : _pointer(std::exchange(other._pointer, nullptr)) {}

    /// Casts. Empty when `other` is empty or its component lacks the interface.
    template <class Other>
    requires(!std::is_same_v<Other, Interface>) VEXVar(const VEXVar<Other>& other)
    {
        if constexpr (std::is_base_of_v<Interface, Other>) {
            _pointer = other.Get();
            if (_pointer != nullptr) {
                _pointer->AddRef();
            }
        } else if (const VEXBaseUnknown* const unknown = other.Get(); unknown != nullptr) {
            void* object = nullptr;
            if (SUCCEEDED(unknown->QueryInterface(VEXInterfaceTraits<Interface>::Id, &object))) {
                _pointer = static_cast<Interface*>(object);
            }
        }
    }

    ~VEXVar() { Reset(); }

    VEXVar& operator=(VEXVar other) noexcept
    {
        std::swap(_pointer, other._pointer);
        return *this;
    }

    /// A handle that takes over the reference behind `pointer` (null gives an empty handle).
    static VEXVar Adopt(Interface* pointer) noexcept
    {
        VEXVar handle;
        handle._pointer = pointer;
        return handle;
    }

    /// The pointer itself, not counted; null when empty.
    Interface* Get() const noexcept { return _pointer; }

    Interface* operator->() const
    {
        if (_pointer == nullptr) {
            VEXUseOfEmptyHandle(VEXInterfaceTraits<Interface>::Name);
        }
        return _pointer;
    }

    explicit operator bool() const noexcept { return _pointer != nullptr; }

    /// Drops the reference; the handle is empty afterwards.
    void Reset() noexcept
    {
        if (Interface* const held = std::exchange(_pointer, nullptr); held != nullptr) {
            held->Release();
        }
    }

    /// Hands the reference over to the caller, who releases it; the handle is empty afterwards.
    [[nodiscard]] Interface* Detach() noexcept { return std::exchange(_pointer, nullptr); }

    friend bool operator==(const VEXVar& handle, std::nullptr_t) noexcept
    {
        return handle._pointer == nullptr;
    }

private:
    Interface* _pointer = nullptr;
};

/// Two handles are equal when both are empty or both reach the same component.
template <class Left, class Right>
bool operator==(const VEXVar<Left>& left, const VEXVar<Right>& right)
{
    const VEXBaseUnknown* const l = left.Get();
    const VEXBaseUnknown* const r = right.Get();
    return l == r || (l != nullptr && r != nullptr && l->IsEqual(r) != 0);
}

/// A handle that takes over the caller's reference.
template <class Interface>
VEXVar<Interface> VEXAdopt(Interface* pointer) noexcept
{
    return VEXVar<Interface>::Adopt(pointer);
}

/// A handle with a reference of its own; the caller keeps his.
template <class Interface>
VEXVar<Interface> VEXShare(Interface* pointer) noexcept
{
    if (pointer != nullptr) {
        pointer->AddRef();
    }
    return VEXVar<Interface>::Adopt(pointer);
}
