// SPDX-License-Identifier: Apache-2.0
// What belongs to a body: its domains and cells. The body owns them and frees them when it dies;
// counting one of them counts the body, so that a handle of a cell keeps the whole body.
#pragma once

#include "host/component/Component.h"

namespace vex {

class Body;

class BodyMember : public Component
{
public:
    BodyMember(const ComponentType& type, Body& body) noexcept : Component(type, 0), _body(&body) {}

    HRESULT QueryInterface(const IID& iid, void** object) const override;
    HRESULT QueryInterface(const char* interfaceName, void** object) const override;
    unsigned long AddRef() const override;
    unsigned long Release() const override;
    /// 1 when the body is gone.
    int IsNull() const override;

    Body& OwnBody() const noexcept { return *_body; }

private:
    Body* _body;
};

}  // namespace vex
