// SPDX-License-Identifier: Apache-2.0
// The factory of temperatures.
#pragma once

#include "HLXTemperatures.h"
#include "host/component/Adapter.h"

namespace hlx {

class TemperatureFactory final : public vex::Adapter<HLXITemperatureFact, vex::Component>
{
public:
    using Adapter::Adapter;
    HRESULT CreateTemperature(VEXISpecObject_var& temperature, const VEXUnicodeString& lateType,
                              VEXDocument* document, VEXISamAnalysisSet_var& step) override;
};

}  // namespace hlx
