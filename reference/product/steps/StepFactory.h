// SPDX-License-Identifier: Apache-2.0
// The factory of steps.
#pragma once

#include "HLXSteps.h"
#include "host/component/Adapter.h"

namespace hlx {

class StepFactory final : public vex::Adapter<HLXIAnalysisStepFact, vex::Component>
{
public:
    using Adapter::Adapter;
    HRESULT CreateStep(VEXISamAnalysisScan* history, VEXISamAnalysisCase* analysisCase,
                       VEXISamAnalysisSet*& step, const VEXUnicodeString& lateType) override;
};

}  // namespace hlx
