// SPDX-License-Identifier: Apache-2.0
// Containers of a step that are made when they are first needed.
#pragma once

#include "HLXIContainerFactoryStep.h"
#include "host/component/Adapter.h"
#include "host/feature/Feature.h"

namespace hlx {

/// Of every step. A container is made once, at the end of the step.
class StepContainerFactory final : public vex::Adapter<HLXIContainerFactoryStep, vex::Feature>
{
public:
    using Adapter::Adapter;
    HRESULT CreateFieldOutputRequestContainer() override;
    HRESULT CreateHistoryOutputRequestContainer() override;
};

}  // namespace hlx
