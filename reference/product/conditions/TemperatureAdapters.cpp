// SPDX-License-Identifier: Apache-2.0
// Temperatures: each operation is an attribute, set or given.
#include "product/conditions/TemperatureAdapters.h"

#include "HLXJobs.h"

namespace hlx {

using vex::In;
using vex::Out;
using vex::Probe;

namespace {

constexpr int lastDistribution = 3;

/// Of a step or an increment.
HRESULT SetCount(vex::Feature& history, std::string_view attribute, int number)
{
    return history.Tree() != nullptr && number < 1 ? E_INVALIDARG
                                                   : vex::SetInteger(history, attribute, number);
}

int GetCount(const vex::Feature& history, std::string_view attribute)
{
    int number = 0;
    vex::GetInteger(history, attribute, number);
    return number;
}

}  // namespace

// ---- Temperatures ----

HRESULT TemperatureAdapter::SetMagnitude(double temperature)
{
    return Probe<"HLXITemperature::SetMagnitude">(
        [&] { return vex::SetNumber(Self(), "Magnitude", temperature); }, In(temperature));
}

HRESULT TemperatureAdapter::GetMagnitude(double& temperature) const
{
    return Probe<"HLXITemperature::GetMagnitude">(
        [&] { return vex::GetNumber(Self(), "Magnitude", temperature); }, Out(temperature));
}

HRESULT TemperatureAdapter::SetDistribution(const int& distribution)
{
    return Probe<"HLXITemperature::SetDistribution">(
        [&]() -> HRESULT {
            const bool isKnown = distribution >= 0 && distribution <= lastDistribution;
            return Self().Tree() != nullptr && !isKnown
                       ? E_INVALIDARG
                       : vex::SetInteger(Self(), "Distribution", distribution);
        },
        In(distribution));
}

HRESULT TemperatureAdapter::GetDistribution(int& distribution) const
{
    return Probe<"HLXITemperature::GetDistribution">(
        [&] { return vex::GetInteger(Self(), "Distribution", distribution); }, Out(distribution));
}

HRESULT TemperatureAdapter::SetUserSubroutine(unsigned char flag)
{
    return Probe<"HLXITemperature::SetUserSubroutine">(
        [&] { return vex::SetFlag(Self(), "UserSubroutine", flag); }, In(flag));
}

HRESULT TemperatureAdapter::GetUserSubroutine(unsigned char& flag) const
{
    return Probe<"HLXITemperature::GetUserSubroutine">(
        [&] { return vex::GetFlag(Self(), "UserSubroutine", flag); }, Out(flag));
}

// ---- Histories ----

HRESULT TemperatureHistoryAdapter::SetUniformValue(double temperature)
{
    return Probe<"HLXITemperatureHistory::SetUniformValue">(
        [&] { return vex::SetNumber(Self(), "Magnitude", temperature); }, In(temperature));
}

HRESULT TemperatureHistoryAdapter::GetUniformValue(double& temperature) const
{
    return Probe<"HLXITemperatureHistory::GetUniformValue">(
        [&] { return vex::GetNumber(Self(), "Magnitude", temperature); }, Out(temperature));
}

HRESULT TemperatureHistoryAdapter::SetBeginStep(const int& step)
{
    return Probe<"HLXITemperatureHistory::SetBeginStep">(
        [&] { return SetCount(Self(), "BeginStep", step); }, In(step));
}

int TemperatureHistoryAdapter::GetBeginStep() const
{
    return Probe<"HLXITemperatureHistory::GetBeginStep">(
        [&] { return GetCount(Self(), "BeginStep"); });
}

HRESULT TemperatureHistoryAdapter::SetStartIncrement(const int& increment)
{
    return Probe<"HLXITemperatureHistory::SetStartIncrement">(
        [&] { return SetCount(Self(), "StartIncrement", increment); }, In(increment));
}

int TemperatureHistoryAdapter::GetStartIncrement() const
{
    return Probe<"HLXITemperatureHistory::GetStartIncrement">(
        [&] { return GetCount(Self(), "StartIncrement"); });
}

HRESULT TemperatureHistoryAdapter::SetEndStep(const int& step)
{
    return Probe<"HLXITemperatureHistory::SetEndStep">(
        [&] { return SetCount(Self(), "EndStep", step); }, In(step));
}

int TemperatureHistoryAdapter::GetEndStep() const
{
    return Probe<"HLXITemperatureHistory::GetEndStep">([&] { return GetCount(Self(), "EndStep"); });
}

HRESULT TemperatureHistoryAdapter::SetEndIncrement(const int& increment)
{
    return Probe<"HLXITemperatureHistory::SetEndIncrement">(
        [&] { return SetCount(Self(), "EndIncrement", increment); }, In(increment));
}

int TemperatureHistoryAdapter::GetEndIncrement() const
{
    return Probe<"HLXITemperatureHistory::GetEndIncrement">(
        [&] { return GetCount(Self(), "EndIncrement"); });
}

HRESULT TemperatureHistoryAdapter::SetJob(const VEXISpecObject_var& job, int option)
{
    return Probe<"HLXITemperatureHistory::SetJob">(
        [&]() -> HRESULT {
            return Self().Tree() != nullptr && option != 0
                       ? E_INVALIDARG
                       : vex::SetTarget<HLXIJob>(Self(), "Job", job);
        },
        In(job), In(option));
}

HRESULT TemperatureHistoryAdapter::GetJob(VEXISpecObject_var& job) const
{
    return Probe<"HLXITemperatureHistory::GetJob">(
        [&] { return vex::GetTarget<HLXIJob>(Self(), "Job", job); }, Out(job));
}

HRESULT TemperatureHistoryAdapter::GetAnalysisCase(VEXISpecObject_var& analysisCase) const
{
    return Probe<"HLXITemperatureHistory::GetAnalysisCase">(
        [&]() -> HRESULT {
            analysisCase.Reset();
            VEXISpecObject_var found;
            const HRESULT result = vex::GetTarget<HLXIJob>(Self(), "Job", found);
            const HLXIJob_var job = found;
            return job == nullptr ? result : job->GetAnalysisCase(analysisCase);
        },
        Out(analysisCase));
}

HRESULT TemperatureHistoryAdapter::SetUserSubroutine(unsigned char flag)
{
    return Probe<"HLXITemperatureHistory::SetUserSubroutine">(
        [&] { return vex::SetFlag(Self(), "UserSubroutine", flag); }, In(flag));
}

HRESULT TemperatureHistoryAdapter::GetUserSubroutine(unsigned char& flag) const
{
    return Probe<"HLXITemperatureHistory::GetUserSubroutine">(
        [&] { return vex::GetFlag(Self(), "UserSubroutine", flag); }, Out(flag));
}

}  // namespace hlx
