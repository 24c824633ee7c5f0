// SPDX-License-Identifier: Apache-2.0
// A number of an entity as an object of its own: counted, and holding its entity.
#pragma once

#include "VEXEntities.h"
#include "host/component/Adapter.h"
#include "host/feature/Feature.h"

#include <string>
#include <string_view>

namespace vex {

class EntityParameter final : public Component
{
public:
    /// @param attribute  the name of an attribute of kind double
    EntityParameter(Feature& entity, std::string_view attribute);

    Feature& Entity() const { return *static_cast<Feature*>(_entity.Get()); }
    const std::string& Name() const noexcept { return _attribute; }
    int IsNull() const override { return _entity->IsNull(); }

private:
    VEXBaseUnknown_var _entity;
    std::string _attribute;
};

class ParameterAdapter final : public Adapter<VEXIParameter, EntityParameter>
{
public:
    using Adapter::Adapter;
    HRESULT Valuate(double value) override;
    HRESULT GetValue(double& value) const override;
};

/// A new parameter for an attribute of kind double of an entity; empty when the entity is gone.
VEX_EXPORT VEXIParameter_var ParameterOf(Feature& entity, std::string_view attribute);

}  // namespace vex
