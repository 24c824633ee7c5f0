// SPDX-License-Identifier: Apache-2.0
// The factory of loads.
#pragma once

#include "HLXILoadFact.h"
#include "host/component/Adapter.h"

namespace hlx {

class LoadFactory final : public vex::Adapter<HLXILoadFact, vex::Component>
{
public:
    using Adapter::Adapter;
    HRESULT CreatePressure(VEXISpecObject_var& load, VEXDocument* document,
                           VEXISamAnalysisSet_var& step) override;
    HRESULT CreateHeatFlux(VEXISpecObject_var& load, const VEXUnicodeString& lateType,
                           VEXDocument* document, VEXISamAnalysisSet_var& step) override;
    HRESULT CreateGravity(VEXISpecObject_var& load, VEXDocument* document,
                          VEXISamAnalysisSet_var& step) override;
    HRESULT CreateRotationalBodyForce(VEXISpecObject_var& load, VEXDocument* document,
                                      VEXISamAnalysisSet_var& step) override;
    HRESULT CreateConcentratedForce(VEXISpecObject_var& load, VEXDocument* document,
                                    VEXISamAnalysisSet_var& step) override;
    HRESULT CreateFilmCondition(VEXISpecObject_var& load, VEXDocument* document,
                                VEXISamAnalysisSet_var& step) override;
};

}  // namespace hlx
