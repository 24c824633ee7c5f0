// SPDX-License-Identifier: Apache-2.0
// Temperatures and their histories through their interfaces.
#pragma once

#include "HLXTemperatures.h"
#include "product/conditions/ConditionAdapter.h"

namespace hlx {

class TemperatureAdapter final : public ConditionAdapter<HLXITemperature>
{
public:
    using ConditionAdapter::ConditionAdapter;
    HRESULT SetMagnitude(double temperature) override;
    HRESULT GetMagnitude(double& temperature) const override;
    HRESULT SetDistribution(const int& distribution) override;
    HRESULT GetDistribution(int& distribution) const override;
    HRESULT SetUserSubroutine(unsigned char flag) override;
    HRESULT GetUserSubroutine(unsigned char& flag) const override;
};

class TemperatureHistoryAdapter final : public ConditionAdapter<HLXITemperatureHistory>
{
public:
    using ConditionAdapter::ConditionAdapter;
    HRESULT SetUniformValue(double temperature) override;
    HRESULT GetUniformValue(double& temperature) const override;
    HRESULT SetBeginStep(const int& step) override;
    int GetBeginStep() const override;
    HRESULT SetStartIncrement(const int& increment) override;
    int GetStartIncrement() const override;
    HRESULT SetEndStep(const int& step) override;
    int GetEndStep() const override;
    HRESULT SetEndIncrement(const int& increment) override;
    int GetEndIncrement() const override;
    HRESULT SetJob(const VEXISpecObject_var& job, int option) override;
    HRESULT GetJob(VEXISpecObject_var& job) const override;
    HRESULT GetAnalysisCase(VEXISpecObject_var& analysisCase) const override;
    HRESULT SetUserSubroutine(unsigned char flag) override;
    HRESULT GetUserSubroutine(unsigned char& flag) const override;
};

}  // namespace hlx
