// SPDX-License-Identifier: Apache-2.0
// The base of every object: what objects without a row of the component table answer.
#include "VEXBaseUnknown.h"

#include "VEXMetaClass.h"
#include "VEXVar.h"
#include "host/component/Cast.h"

#include <cstdio>
#include <cstdlib>

namespace {

VEXBaseUnknown* FindBaseOnly(const VEXBaseUnknown& component, const IID& iid)
{
    return iid == IID_VEXBaseUnknown ? const_cast<VEXBaseUnknown*>(&component) : nullptr;
}

}  // namespace

void VEXUseOfEmptyHandle(const char* interfaceName)
{
    std::fprintf(stderr, "%s: '->' on an empty handle. Test the handle before it is used.\n",
                 interfaceName == nullptr ? "an interface" : interfaceName);
    std::abort();
}

HRESULT VEXBaseUnknown::QueryInterface(const IID& iid, void** object) const
{
    return vex::Cast(*this, &FindBaseOnly, iid, nullptr, object);
}

HRESULT VEXBaseUnknown::QueryInterface(const char* interfaceName, void** object) const
{
    return vex::Cast(*this, &FindBaseOnly, vex::IdOfInterface(interfaceName), interfaceName,
                     object);
}

unsigned long VEXBaseUnknown::AddRef() const
{
    return ++_count;
}

unsigned long VEXBaseUnknown::Release() const
{
    const unsigned long left = --_count;
    if (left == 0) {
        delete this;
    }
    return left;
}

HRESULT VEXBaseUnknown::GetTypeInfoCount(unsigned int* count) const
{
    if (count != nullptr) {
        *count = 0;
    }
    return E_NOTIMPL;
}

HRESULT VEXBaseUnknown::GetTypeInfo(unsigned int, unsigned long, void** typeInfo) const
{
    if (typeInfo != nullptr) {
        *typeInfo = nullptr;
    }
    return E_NOTIMPL;
}

HRESULT VEXBaseUnknown::GetIDsOfNames(const IID&, char**, unsigned int, unsigned long, long*) const
{
    return E_NOTIMPL;
}

HRESULT VEXBaseUnknown::Invoke(long, const IID&, unsigned long, unsigned short, void*, void*) const
{
    return E_NOTIMPL;
}

VEXBaseUnknown::~VEXBaseUnknown() = default;

VEXMetaClass* VEXBaseUnknown::GetMetaObject() const
{
    return MetaObject();
}

const char* VEXBaseUnknown::IsA() const
{
    return GetMetaObject()->GetName();
}

int VEXBaseUnknown::IsAKindOf(const char* name) const
{
    return GetMetaObject()->IsAKindOf(name);
}

VEXBaseUnknown* VEXBaseUnknown::GetImpl() const
{
    return const_cast<VEXBaseUnknown*>(this);
}

void VEXBaseUnknown::SetImpl(VEXBaseUnknown*) {}

int VEXBaseUnknown::IsNull() const
{
    return 0;
}

int VEXBaseUnknown::IsEqual(const VEXBaseUnknown* other) const
{
    return other != nullptr && other->GetImpl() == GetImpl() ? 1 : 0;
}

HRESULT VEXBaseUnknown::ChangeComponentState(int, const VEXBaseUnknown*) const
{
    return E_NOTIMPL;
}

VEXMetaClass* VEXBaseUnknown::MetaObject()
{
    static VEXMetaClass* const metaObject =
        VEXMetaClass::Get("VEXBaseUnknown", VEXImplementationClass, nullptr, "VEXNull", "VEXHost");
    return metaObject;
}

const GUID& VEXBaseUnknown::ClassId()
{
    return MetaObject()->GetClassId();
}

const char* VEXBaseUnknown::ClassName()
{
    return MetaObject()->GetName();
}

VEXBaseUnknown* VEXBaseUnknown::CreateItself()
{
    return new VEXBaseUnknown;
}
