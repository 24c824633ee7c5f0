// SPDX-License-Identifier: Apache-2.0
// The factory of boundary conditions.
#pragma once

#include "HLXBoundaryConditions.h"
#include "host/component/Adapter.h"

namespace hlx {

class BoundaryConditionFactory final
    : public vex::Adapter<HLXIBoundaryConditionsFact, vex::Component>
{
public:
    using Adapter::Adapter;
    HRESULT CreateDisplacement(VEXISpecObject_var& condition, VEXDocument* document,
                               VEXISamAnalysisSet_var& step) override;
    HRESULT CreateClamp(VEXISpecObject_var& condition, VEXDocument* document,
                        VEXISamAnalysisSet_var& step) override;
    HRESULT CreateVelocity(VEXISpecObject_var& condition, VEXDocument* document,
                           VEXISamAnalysisSet_var& step) override;
};

}  // namespace hlx
