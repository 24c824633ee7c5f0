// SPDX-License-Identifier: Apache-2.0
// Counting and queries of what belongs to a body.
#include "host/part/BodyMember.h"

#include "host/component/Cast.h"
#include "host/part/Body.h"

namespace vex {

namespace {

VEXBaseUnknown* FindOfMember(const VEXBaseUnknown& member, const IID& iid)
{
    return static_cast<const Component&>(member).FindInterface(iid);
}

}  // namespace

HRESULT BodyMember::QueryInterface(const IID& iid, void** object) const
{
    return Cast(*this, &FindOfMember, iid, nullptr, object);
}

HRESULT BodyMember::QueryInterface(const char* interfaceName, void** object) const
{
    return Cast(*this, &FindOfMember, IdOfInterface(interfaceName), interfaceName, object);
}

unsigned long BodyMember::AddRef() const
{
    return _body->AddRef();
}

unsigned long BodyMember::Release() const
{
    return _body->Release();
}

int BodyMember::IsNull() const
{
    return _body->IsNull();
}

}  // namespace vex
