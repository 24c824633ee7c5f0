// SPDX-License-Identifier: Apache-2.0
// Parameters of entities.
#include "host/analysis/EntityParameter.h"

#include "host/feature/AttributeValues.h"
#include "host/system/Probe.h"

namespace vex {

namespace {

bool IsVector(const LateType& kind, std::string_view attribute)
{
    const int index = kind.IndexOf(attribute);
    if (index < 0) {
        return false;
    }
    const Value& standard = kind.attributes[static_cast<std::size_t>(index)].defaultValue;
    const auto* const numbers = std::get_if<Boxed<DoubleList>>(&standard);
    return numbers != nullptr && !(*numbers)->empty();
}

}  // namespace

EntityParameter::EntityParameter(const char* row, Feature& entity, std::string_view attribute)
    : Component(ComponentTypes::Instance().Require(row)),
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
    auto* const parameter = new EntityParameter("VEXSamParameter", entity, attribute);
    return VEXAdopt(parameter->Face<VEXIParameter>());
}

HRESULT VectorParameterAdapter::SetComponent(double value, const VEXUnicodeString& unit, int row,
                                             int column, int option)
{
    return Probe<"VEXIVectorParameter::SetComponent">(
        [&]() -> HRESULT {
            if (Self().IsNull() == 0 && (!unit.IsEmpty() || column != 1 || option != 0)) {
                return E_INVALIDARG;
            }
            return SetNumberAt(Self().Entity(), Self().Name(), row, value);
        },
        In(value), In(unit), In(row), In(column), In(option));
}

HRESULT VectorParameterAdapter::GetComponent(double& value, int row, int column) const
{
    return Probe<"VEXIVectorParameter::GetComponent">(
        [&]() -> HRESULT {
            if (Self().IsNull() == 0 && column != 1) {
                value = 0;
                return E_INVALIDARG;
            }
            return GetNumberAt(Self().Entity(), Self().Name(), row, value);
        },
        Out(value), In(row), In(column));
}

VEXIVectorParameter_var VectorParameterOf(Feature& entity, std::string_view attribute)
{
    if (entity.Tree() == nullptr || !IsVector(entity.Kind(), attribute)) {
        return {};
    }
    auto* const parameter = new EntityParameter("VEXSamVectorParameter", entity, attribute);
    return VEXAdopt(parameter->Face<VEXIVectorParameter>());
}

}  // namespace vex
