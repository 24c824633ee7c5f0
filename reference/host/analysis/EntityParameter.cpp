// SPDX-License-Identifier: Apache-2.0
// Parameters of entities.
#include "host/analysis/EntityParameter.h"

#include "host/feature/AttributeValues.h"
#include "host/system/Probe.h"

namespace vex {

EntityParameter::EntityParameter(Feature& entity, std::string_view attribute)
    : Component(ComponentTypes::Instance().Require("VEXSamParameter")),
      _entity(VEXShare<VEXBaseUnknown>(&entity)),
      _attribute(attribute)
{}

HRESULT ParameterAdapter::Valuate(double value)
{
    return Probe<"VEXIParameter::Valuate">(
        [&] { return SetNumber(Self().Entity(), Self().Name(), value); }, In(value));
}

HRESULT ParameterAdapter::GetValue(double& value) const
{
    return Probe<"VEXIParameter::GetValue">(
        [&] { return GetNumber(Self().Entity(), Self().Name(), value); }, Out(value));
}

VEXIParameter_var ParameterOf(Feature& entity, std::string_view attribute)
{
    if (entity.Tree() == nullptr) {
        return {};
    }
    auto* const parameter = new EntityParameter(entity, attribute);
    return VEXAdopt(parameter->Face<VEXIParameter>());
}

}  // namespace vex
