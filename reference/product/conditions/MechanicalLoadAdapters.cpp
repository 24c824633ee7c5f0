// SPDX-License-Identifier: Apache-2.0
// Mechanical loads: each operation is an attribute, set or given.
#include "product/conditions/LoadAdapters.h"

#include "host/analysis/EntityAxis.h"
#include "host/analysis/EntityParameter.h"

#include <initializer_list>
#include <string_view>
#include <utility>

namespace hlx {

using vex::In;
using vex::Out;
using vex::Probe;

namespace {

HRESULT GiveParameters(vex::Feature& load,
                       std::initializer_list<std::pair<std::string_view, VEXIParameter_var*>> given)
{
    for (const auto& [attribute, parameter] : given) {
        *parameter = vex::ParameterOf(load, attribute);
    }
    return load.Tree() == nullptr ? E_FAIL : S_OK;
}

}  // namespace

HRESULT PressureAdapter::GetPressureParameter(VEXIParameter_var& pressure)
{
    return Probe<"HLXIPressureLoad::GetPressureParameter">(
        [&] {
            return GiveParameters(Self(), {{"Pressure", &pressure}});
        },
        Out(pressure));
}

HRESULT PressureAdapter::GetPressure(double& pressure) const
{
    return Probe<"HLXIPressureLoad::GetPressure">(
        [&] { return vex::GetNumber(Self(), "Pressure", pressure); }, Out(pressure));
}

HRESULT GravityAdapter::GetComponentParameters(VEXIParameter_var& x, VEXIParameter_var& y,
                                               VEXIParameter_var& z)
{
    return Probe<"HLXIGravity::GetComponentParameters">(
        [&] {
            return GiveParameters(Self(),
                                  {{"ComponentX", &x}, {"ComponentY", &y}, {"ComponentZ", &z}});
        },
        Out(x), Out(y), Out(z));
}

HRESULT GravityAdapter::GetComponentX(double& acceleration) const
{
    return Probe<"HLXIGravity::GetComponentX">(
        [&] { return vex::GetNumber(Self(), "ComponentX", acceleration); }, Out(acceleration));
}

HRESULT GravityAdapter::GetComponentY(double& acceleration) const
{
    return Probe<"HLXIGravity::GetComponentY">(
        [&] { return vex::GetNumber(Self(), "ComponentY", acceleration); }, Out(acceleration));
}

HRESULT GravityAdapter::GetComponentZ(double& acceleration) const
{
    return Probe<"HLXIGravity::GetComponentZ">(
        [&] { return vex::GetNumber(Self(), "ComponentZ", acceleration); }, Out(acceleration));
}

HRESULT RotationalBodyForceAdapter::GetRotationParameters(VEXIParameter_var& velocity,
                                                          VEXIParameter_var& acceleration)
{
    return Probe<"HLXIRotationalBodyForce::GetRotationParameters">(
        [&] {
            return GiveParameters(Self(),
                                  {{"Velocity", &velocity}, {"Acceleration", &acceleration}});
        },
        Out(velocity), Out(acceleration));
}

HRESULT RotationalBodyForceAdapter::SetAxis(const VEXILinkableObject_var& edge,
                                            const VEXISpecObject_var& part)
{
    return Probe<"HLXIRotationalBodyForce::SetAxis">(
        [&] { return vex::SetAxis(Self(), "AxisOfRotation", edge, part); }, In(edge), In(part));
}

HRESULT RotationalBodyForceAdapter::GetVelocity(double& velocity) const
{
    return Probe<"HLXIRotationalBodyForce::GetVelocity">(
        [&] { return vex::GetNumber(Self(), "Velocity", velocity); }, Out(velocity));
}

HRESULT RotationalBodyForceAdapter::GetAcceleration(double& acceleration) const
{
    return Probe<"HLXIRotationalBodyForce::GetAcceleration">(
        [&] { return vex::GetNumber(Self(), "Acceleration", acceleration); }, Out(acceleration));
}

HRESULT ConcentratedForceAdapter::SetComponentX(double force)
{
    return Probe<"HLXIConcentratedForce::SetComponentX">(
        [&] { return vex::SetNumber(Self(), "ForceX", force); }, In(force));
}

HRESULT ConcentratedForceAdapter::SetComponentY(double force)
{
    return Probe<"HLXIConcentratedForce::SetComponentY">(
        [&] { return vex::SetNumber(Self(), "ForceY", force); }, In(force));
}

HRESULT ConcentratedForceAdapter::SetComponentZ(double force)
{
    return Probe<"HLXIConcentratedForce::SetComponentZ">(
        [&] { return vex::SetNumber(Self(), "ForceZ", force); }, In(force));
}

HRESULT ConcentratedForceAdapter::GetComponentX(double& force) const
{
    return Probe<"HLXIConcentratedForce::GetComponentX">(
        [&] { return vex::GetNumber(Self(), "ForceX", force); }, Out(force));
}

HRESULT ConcentratedForceAdapter::GetComponentY(double& force) const
{
    return Probe<"HLXIConcentratedForce::GetComponentY">(
        [&] { return vex::GetNumber(Self(), "ForceY", force); }, Out(force));
}

HRESULT ConcentratedForceAdapter::GetComponentZ(double& force) const
{
    return Probe<"HLXIConcentratedForce::GetComponentZ">(
        [&] { return vex::GetNumber(Self(), "ForceZ", force); }, Out(force));
}

}  // namespace hlx
