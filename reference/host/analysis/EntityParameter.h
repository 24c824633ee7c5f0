// SPDX-License-Identifier: Apache-2.0
// Numbers of an entity as objects of their own: counted, and holding their entity.
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
    /// @param row        in the component table: what kind of parameter it is
    /// @param attribute  name of the attribute that it stands for
    EntityParameter(const char* row, Feature& entity, std::string_view attribute);

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

class VectorParameterAdapter final : public Adapter<VEXIVectorParameter, EntityParameter>
{
public:
    using Adapter::Adapter;
    HRESULT SetComponent(double value, const VEXUnicodeString& unit, int row, int column,
                         int option) override;
    HRESULT GetComponent(double& value, int row, int column) const override;
};

/// A new parameter for an attribute of kind double of an entity; empty when the entity is gone.
VEX_EXPORT VEXIParameter_var ParameterOf(Feature& entity, std::string_view attribute);

/// A new parameter for an attribute of kind list whose default has numbers; empty when there is
/// none of that name, or the entity is gone.
VEXIVectorParameter_var VectorParameterOf(Feature& entity, std::string_view attribute);

}  // namespace vex
