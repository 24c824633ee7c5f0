// SPDX-License-Identifier: Apache-2.0
// The kinds of boundary condition through their interfaces.
#pragma once

#include "HLXBoundaryConditions.h"
#include "product/conditions/ConditionAdapter.h"

namespace hlx {

class DisplacementAdapter final : public ConditionAdapter<HLXIDisplacementBC>
{
public:
    using ConditionAdapter::ConditionAdapter;
    HRESULT GetValue(int degreeOfFreedom, double& value) const override;
    HRESULT GetSwitch(int degreeOfFreedom, unsigned char& flag) const override;
    HRESULT GetUserSubroutine(unsigned char& flag) const override;
};

class MotionAdapter final : public ConditionAdapter<HLXIMotionBC>
{
public:
    using ConditionAdapter::ConditionAdapter;
    HRESULT SetValue(int degreeOfFreedom, double value) override;
    HRESULT GetValue(int degreeOfFreedom, double& value) const override;
    HRESULT SetSwitch(int degreeOfFreedom, unsigned char flag) override;
    HRESULT GetSwitch(int degreeOfFreedom, unsigned char& flag) const override;
    HRESULT SetUserSubroutine(unsigned char flag) override;
    HRESULT GetUserSubroutine(unsigned char& flag) const override;
};

}  // namespace hlx
