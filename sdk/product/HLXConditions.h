// SPDX-License-Identifier: Apache-2.0
// What is prescribed in a step: loads (HLXLoads.h), boundary conditions (HLXBoundaryConditions.h)
// and temperatures (HLXTemperatures.h). All numbers are finite (E_INVALIDARG for others, the old
// one stays) and in the units of the document. Each operation answers S_OK, or E_FAIL when the
// condition is gone; a getter then gives 0 or nothing, and leaves flags and whole numbers as they
// are. New ones have the catalogue's defaults: flags off, numbers 0 where nothing else is said. A
// number that a stored document holds is given as it is, a whole one beyond 32 bits as the nearest.
//
// What a factory makes is a VEXISpecObject, a VEXIAlias, a VEXISamAnalysisEntity and a
// VEXISamAnalysisSupport too.
#pragma once

#include "VEXEntities.h"

/// What conditions have in common: every condition has it at the same places. Names of ours: all.
class HLXICondition : public VEXBaseUnknown
{
public:
    /// Gives the condition an amplitude, which says how it goes with time.
    /// @param amplitude  an amplitude of the condition's document; empty: none
    /// @return also E_INVALIDARG for another object
    virtual HRESULT SetAmplitude(const VEXISpecObject_var& amplitude) = 0;

    /// Whether the amplitude is used (not 0); it is kept while it is not, and may be missing while
    /// it is.
    virtual HRESULT SetUseAmplitude(unsigned char flag) = 0;

    /// The amplitude, and whether it is used.
    /// @param amplitude  receives it; empty when there is none
    virtual HRESULT GetAmplitude(VEXISpecObject_var& amplitude) const = 0;
    virtual HRESULT GetUseAmplitude(unsigned char& flag) const = 0;
};

VEX_INTERFACE(HLXICondition);
