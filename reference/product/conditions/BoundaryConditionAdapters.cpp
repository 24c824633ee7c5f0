// SPDX-License-Identifier: Apache-2.0
// Boundary conditions: each operation is an attribute, or one number of a vector.
#include "product/conditions/BoundaryConditionAdapters.h"

namespace hlx {

using vex::In;
using vex::Out;
using vex::Probe;

namespace {

/// By degree of freedom.
constexpr const char* displacementSwitches[] = {"u1ON", "u2ON", "u3ON", "ur1ON", "ur2ON", "ur3ON"};

}  // namespace

HRESULT DisplacementAdapter::GetValue(int degreeOfFreedom, double& value) const
{
    return Probe<"HLXIDisplacementBC::GetValue">(
        [&] {
            return degreeOfFreedom < 4
                       ? vex::GetNumberAt(Self(), "DisplBCTrans", degreeOfFreedom, value)
                       : vex::GetNumberAt(Self(), "DisplBCRotation", degreeOfFreedom - 3, value);
        },
        In(degreeOfFreedom), Out(value));
}

HRESULT DisplacementAdapter::GetSwitch(int degreeOfFreedom, unsigned char& flag) const
{
    return Probe<"HLXIDisplacementBC::GetSwitch">(
        [&]() -> HRESULT {
            if (degreeOfFreedom >= 1 && degreeOfFreedom <= 6) {
                return vex::GetFlag(Self(), displacementSwitches[degreeOfFreedom - 1], flag);
            }
            return Self().Tree() == nullptr ? E_FAIL : E_INVALIDARG;
        },
        In(degreeOfFreedom), Out(flag));
}

HRESULT DisplacementAdapter::GetUserSubroutine(unsigned char& flag) const
{
    return Probe<"HLXIDisplacementBC::GetUserSubroutine">(
        [&] { return vex::GetFlag(Self(), "userSub", flag); }, Out(flag));
}

HRESULT MotionAdapter::SetValue(int degreeOfFreedom, double value)
{
    return Probe<"HLXIMotionBC::SetValue">(
        [&] { return vex::SetNumberAt(Self(), "Values", degreeOfFreedom, value); },
        In(degreeOfFreedom), In(value));
}

HRESULT MotionAdapter::GetValue(int degreeOfFreedom, double& value) const
{
    return Probe<"HLXIMotionBC::GetValue">(
        [&] { return vex::GetNumberAt(Self(), "Values", degreeOfFreedom, value); },
        In(degreeOfFreedom), Out(value));
}

HRESULT MotionAdapter::SetSwitch(int degreeOfFreedom, unsigned char flag)
{
    return Probe<"HLXIMotionBC::SetSwitch">(
        [&] {
            return vex::SetNumberAt(Self(), "Switches", degreeOfFreedom, flag == 0 ? 0.0 : 1.0);
        },
        In(degreeOfFreedom), In(flag));
}

HRESULT MotionAdapter::GetSwitch(int degreeOfFreedom, unsigned char& flag) const
{
    return Probe<"HLXIMotionBC::GetSwitch">(
        [&] {
            double stored = 0;
            const HRESULT result = vex::GetNumberAt(Self(), "Switches", degreeOfFreedom, stored);
            if (SUCCEEDED(result)) {
                flag = stored == 0 ? 0 : 1;
            }
            return result;
        },
        In(degreeOfFreedom), Out(flag));
}

HRESULT MotionAdapter::SetUserSubroutine(unsigned char flag)
{
    return Probe<"HLXIMotionBC::SetUserSubroutine">(
        [&] { return vex::SetFlag(Self(), "UserSubroutine", flag); }, In(flag));
}

HRESULT MotionAdapter::GetUserSubroutine(unsigned char& flag) const
{
    return Probe<"HLXIMotionBC::GetUserSubroutine">(
        [&] { return vex::GetFlag(Self(), "UserSubroutine", flag); }, Out(flag));
}

}  // namespace hlx
