// SPDX-License-Identifier: Apache-2.0
// The factory of amplitudes.
#pragma once

#include "HLXAmplitudes.h"
#include "host/component/Adapter.h"

namespace hlx {

class AmplitudeFactory final : public vex::Adapter<HLXIAmplitudeFact, vex::Component>
{
public:
    using Adapter::Adapter;
    HRESULT CreateTabularAmplitude(VEXISpecObject_var& amplitude, VEXDocument* document) override;
    HRESULT CreateSmoothStepAmplitude(VEXISpecObject_var& amplitude,
                                      VEXDocument* document) override;
};

}  // namespace hlx
