// SPDX-License-Identifier: Apache-2.0
// Factory of loads; component "HLXLoadFact".
#pragma once

#include "VEXAnalysisModel.h"

/// Each operation makes one kind of load in a step of the document. Names of ours: all.
/// @param load  receives the new load
/// @param document, step  where to make it
/// @return S_OK; E_INVALIDARG for a document or step that is not open or not of one another;
/// E_FAIL; E_NOTIMPL for a
///         kind that this release cannot make
class HLXILoadFact : public VEXBaseUnknown
{
public:
    /// A pressure.
    virtual HRESULT CreatePressure(VEXISpecObject_var& load, VEXDocument* document,
                                   VEXISamAnalysisSet_var& step) = 0;
    /// A concentrated, surface or body heat flux.
    /// @param lateType  "HLXConcHeatFlux", "HLXSurfaceHeatFlux" or "HLXBodyHeatFlux"
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
