// SPDX-License-Identifier: Apache-2.0
// Temperatures of regions, and their factory. What is said of numbers and results in
// HLXConditions.h holds here.
#pragma once

#include "HLXConditions.h"
#include "VEXAnalysisModel.h"

/// Every temperature: prescribed, initial, or a history. Names of ours: all.
class HLXITemperature : public HLXICondition
{
public:
    /// The temperature where it is uniform.
    virtual HRESULT SetMagnitude(double temperature) = 0;
    virtual HRESULT GetMagnitude(double& temperature) const = 0;

    /// Where the temperatures come from.
    /// @param distribution  0: uniform (the default); 1: a job's results; 2: the user; 3: a job's
    ///                      results, changed by the user
    /// @return also E_INVALIDARG for another number
    virtual HRESULT SetDistribution(const int& distribution) = 0;
    virtual HRESULT GetDistribution(int& distribution) const = 0;

    /// Whether the temperatures come from a user's subroutine of the solver (not 0).
    virtual HRESULT SetUserSubroutine(unsigned char flag) = 0;
    virtual HRESULT GetUserSubroutine(unsigned char& flag) const = 0;
};

VEX_INTERFACE(HLXITemperature);

/// Temperatures over time: uniform, or out of the results of a job, from an increment of a step of
/// it to another one. It is an HLXITemperature too, which says which of them. Names of ours: all.
class HLXITemperatureHistory : public HLXICondition
{
public:
    /// The temperature where it is uniform: the magnitude of the HLXITemperature.
    virtual HRESULT SetUniformValue(double temperature) = 0;
    virtual HRESULT GetUniformValue(double& temperature) const = 0;

    /// The first and the last step of the job that are taken, and in them the first and the last
    /// increment; all count from 1, which is the default, and are not compared with what the job
    /// has. A getter gives 0 when the history is gone.
    /// @return also E_INVALIDARG for a number below 1
    virtual HRESULT SetBeginStep(const int& step) = 0;
    virtual int GetBeginStep() const = 0;
    virtual HRESULT SetStartIncrement(const int& increment) = 0;
    virtual int GetStartIncrement() const = 0;
    virtual HRESULT SetEndStep(const int& step) = 0;
    virtual int GetEndStep() const = 0;
    virtual HRESULT SetEndIncrement(const int& increment) = 0;
    virtual int GetEndIncrement() const = 0;

    /// The job whose results they are.
    /// @param job     an HLXIJob of the history's document; empty: none
    /// @param option  0; there are no others
    /// @return also E_INVALIDARG for another object or option
    virtual HRESULT SetJob(const VEXISpecObject_var& job, int option) = 0;
    virtual HRESULT GetJob(VEXISpecObject_var& job) const = 0;
    /// The analysis case of that job.
    /// @param analysisCase  receives it; empty when there is no job, or it has none
    virtual HRESULT GetAnalysisCase(VEXISpecObject_var& analysisCase) const = 0;

    /// As those of HLXITemperature.
    virtual HRESULT SetUserSubroutine(unsigned char flag) = 0;
    virtual HRESULT GetUserSubroutine(unsigned char& flag) const = 0;
};

VEX_INTERFACE(HLXITemperatureHistory);

/// Factory of temperatures; component "HLXTemperatureFact". Names of ours: CreateTemperature.
class HLXITemperatureFact : public VEXBaseUnknown
{
public:
    /// Makes a temperature without an alias.
    ///
    ///     HLXTemperatureLT, HLXTemperatureHistoryLT   at the end of the step's temperatures
    ///     HLXInitialTemperatureLT                     at the end of the step's fields, which an
    ///                                                 initial step has
    ///
    /// @param temperature  receives the new temperature; left as it is on failure
    /// @param lateType     one of these
    /// @param document     an open analysis document
    /// @param step         a step of that document
    /// @return S_OK; E_INVALIDARG for another type, document or step; E_FAIL for a step without
    /// that container
    virtual HRESULT CreateTemperature(VEXISpecObject_var& temperature,
                                      const VEXUnicodeString& lateType, VEXDocument* document,
                                      VEXISamAnalysisSet_var& step) = 0;
};

VEX_INTERFACE(HLXITemperatureFact);
