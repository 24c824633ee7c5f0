// SPDX-License-Identifier: Apache-2.0
// Amplitudes: how the size of a load goes with time. An amplitude stands below the analysis model,
// and any number of loads and conditions of the model refer to it.
#pragma once

#include "VEXAnalysisModel.h"

#include <vector>

/// Arrays that grow with push_back and count from 0. A table is an array of rows.
using HLXCftArraydouble = std::vector<double>;
using HLXCftArrayHLXCftArrayDouble = std::vector<HLXCftArraydouble>;

/// What kinds of amplitude have in common; they have it at the same places. Names of ours: all.
class HLXIAmplitude : public VEXBaseUnknown
{
public:
    /// What its times count from.
    /// @param option  0: the start of the step (the default); 1: the start of the first step
    /// @return S_OK; E_INVALIDARG for another option; E_FAIL when the amplitude is gone
    virtual HRESULT SetTimeSpan(const int& option) = 0;
    virtual HRESULT GetTimeSpan(int& option) const = 0;

    /// Replaces the table.
    /// @param table  rows of (time, value): at least one, all numbers finite, no time before that
    ///               of the row above
    /// @return S_OK; E_INVALIDARG for another table (the old one stays); E_FAIL when the amplitude
    /// is gone
    virtual HRESULT SetData(const HLXCftArrayHLXCftArrayDouble& table) = 0;
    /// The table; without rows when none was given, or when what is stored is none.
    virtual HRESULT GetData(HLXCftArrayHLXCftArrayDouble& table) const = 0;
};

VEX_INTERFACE(HLXIAmplitude);

/// Between two rows the value goes along a straight line.
class HLXITabularAmplitude : public HLXIAmplitude
{};

VEX_INTERFACE(HLXITabularAmplitude);

/// Between two rows the value goes along a curve that is level at both.
class HLXISmoothStepAmplitude : public HLXIAmplitude
{};

VEX_INTERFACE(HLXISmoothStepAmplitude);

/// Factory of amplitudes; component "HLXAmplitudeFact". Each operation makes an amplitude without
/// an alias and without rows at the end of the document's current analysis model. Names of ours:
/// all.
/// @param amplitude  receives it; left as it is on failure
/// @param document   an open analysis document
/// @return S_OK; E_INVALIDARG for another document; E_FAIL for one without a current model
class HLXIAmplitudeFact : public VEXBaseUnknown
{
public:
    /// A tabular amplitude.
    virtual HRESULT CreateTabularAmplitude(VEXISpecObject_var& amplitude,
                                           VEXDocument* document) = 0;
    /// A smooth step amplitude.
    virtual HRESULT CreateSmoothStepAmplitude(VEXISpecObject_var& amplitude,
                                              VEXDocument* document) = 0;
};

VEX_INTERFACE(HLXIAmplitudeFact);
