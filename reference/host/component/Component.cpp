// SPDX-License-Identifier: Apache-2.0
// Components: queries, adapters, counting.
#include "host/component/Component.h"

#include "VEXMetaClass.h"
#include "host/component/Cast.h"
#include "host/system/Probe.h"
#include "host/system/Probes.h"

#include <cstdio>
#include <cstdlib>

namespace vex {

namespace {

VEXBaseUnknown* FindOfComponent(const VEXBaseUnknown& component, const IID& iid)
{
    return static_cast<const Component&>(component).FindInterface(iid);
}

}  // namespace

Component::Component(const ComponentType& type, std::uint32_t initialCount) noexcept : _type(&type)
{
    _count = initialCount;
    if (probe::active && initialCount > 0) {
        probe::NoteHeld(this, _type->name.c_str());
    }
}

Component::~Component()
{
    FreeAdapters();
    if (probe::active && _count > 0) {
        probe::NoteLetGo(this);
    }
}

HRESULT Component::QueryInterface(const IID& iid, void** object) const
{
    // Most casts are to what is bound already, and nobody observes them: they take the short way.
    if (!probe::active && object != nullptr) [[likely]] {
        if (VEXBaseUnknown* const adapter = FindBound(iid)) {
            *object = adapter;
            ++_count;
            return S_OK;
        }
    }
    return Cast(*this, &FindOfComponent, iid, nullptr, object);
}

HRESULT Component::QueryInterface(const char* interfaceName, void** object) const
{
    return Cast(*this, &FindOfComponent, IdOfInterface(interfaceName), interfaceName, object);
}

unsigned long Component::AddRef() const
{
    if (_count == _hostReferences && probe::active) {
        probe::NoteHeld(this, IsA());
    }
    return ++_count;
}

unsigned long Component::Release() const
{
    if (_count == 0) {
        std::fprintf(stderr, "%s: released by more than hold it. Release each reference once.\n",
                     IsA());
        std::abort();
    }
    const unsigned long left = --_count;
    if (left <= _hostReferences && probe::active) {
        probe::NoteLetGo(this);
    }
    if (left == 0) {
        FreeAdapters();
        OnUnreferenced();
    }
    return left;
}

void Component::KeepByHost(bool kept) noexcept
{
    _hostReferences = kept ? 1 : 0;
    // A program that holds it was noted when it came to, or held it before the accounts began.
    if (_count <= _hostReferences && probe::active) {
        probe::NoteLetGo(this);
    }
}

const char* Component::IsA() const
{
    return _type->name.c_str();
}

int Component::IsAKindOf(const char* name) const
{
    return name != nullptr &&
                   (_type->IsKindOf(name) || VEXBaseUnknown::MetaObject()->IsAKindOf(name) != 0)
               ? 1
               : 0;
}

VEXMetaClass* Component::MetaObjectOf(const ComponentType& type)
{
    const VEXMetaClass* const base =
        type.base == nullptr ? VEXBaseUnknown::MetaObject() : MetaObjectOf(*type.base);
    // A row that cannot be instantiated by name is that of a late type.
    return VEXMetaClass::Get(type.name.c_str(), VEXImplementationClass, base,
                             type.create == nullptr ? type.name.c_str() : "VEXNull",
                             type.library.c_str());
}

VEXMetaClass* Component::GetMetaObject() const
{
    return MetaObjectOf(*_type);
}

VEXBaseUnknown* Component::FindInterface(const IID& iid) const
{
    if (VEXBaseUnknown* const bound = FindBound(iid)) {
        return bound;
    }
    if (iid == IID_VEXBaseUnknown) {
        return const_cast<Component*>(this);
    }
    const InterfaceEntry* const entry = _type->Find(iid);
    if (entry == nullptr) {
        return nullptr;
    }
    VEXBaseUnknown* const adapter = entry->make(const_cast<Component&>(*this));
    if (adapter != nullptr) {
        _adapters.push_back({entry->id, adapter});
    }
    return adapter;
}

void Component::OnUnreferenced() const
{
    delete this;
}

void Component::FreeAdapters() const
{
    for (const Bound& bound : _adapters) {
        delete bound.adapter;
    }
    // Not only cleared: a feature without outside holders, and there are many, keeps no memory for
    // them.
    std::vector<Bound>().swap(_adapters);
}

}  // namespace vex
