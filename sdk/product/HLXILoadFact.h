// SPDX-License-Identifier: Apache-2.0
// Factory of loads; component "HLXLoadFact".
#pragma once

#include "VEXAnalysisModel.h"

/// Each operation makes one kind of load, without an alias, at the end of the load container of a
/// step; every kind of step but the initial one takes every kind of load. Names of ours: all.
/// @param load      receives the new load; left as it is on failure
/// @param document  an open analysis document
/// @param step      a step of that document
/// @return S_OK; E_INVALIDARG for another document or step; E_FAIL for a step without a load
/// container
class HLXILoadFact : public VEXBaseUnknown
{
public:
    /// A pressure.
    virtual HRESULT CreatePressure(VEXISpecObject_var& load, VEXDocument* document,
                                   VEXISamAnalysisSet_var& step) = 0;
    /// A concentrated, surface or body heat flux.
    /// @param lateType  "HLXConcHeatFlux", "HLXSurfaceHeatFlux" or "HLXBodyHeatFlux"
    /// @return E_INVALIDARG also for another type
    virtual HRESULT CreateHeatFlux(VEXISpecObject_var& load, const VEXUnicodeString& lateType,
                                   VEXDocument* document, VEXISamAnalysisSet_var& step) = 0;
    /// Gravity.
    virtual HRESULT CreateGravity(VEXISpecObject_var& load, VEXDocument* document,
                                  VEXISamAnalysisSet_var& step) = 0;
    /// A rotational body force.
    virtual HRESULT CreateRotationalBodyForce(VEXISpecObject_var& load, VEXDocument* document,
                                              VEXISamAnalysisSet_var& step) = 0;
    /// A concentrated force.
    virtual HRESULT CreateConcentratedForce(VEXISpecObject_var& load, VEXDocument* document,
                                            VEXISamAnalysisSet_var& step) = 0;
    /// A film condition.
    virtual HRESULT CreateFilmCondition(VEXISpecObject_var& load, VEXDocument* document,
                                        VEXISamAnalysisSet_var& step) = 0;
};

VEX_INTERFACE(HLXILoadFact);
