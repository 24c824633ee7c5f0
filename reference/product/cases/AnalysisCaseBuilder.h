// SPDX-License-Identifier: Apache-2.0
// Makes analysis cases with everything that stands in a new one.
#pragma once

#include "HLXIAnalysisCase.h"
#include "host/feature/Feature.h"

#include <string_view>

namespace hlx {

/// Makes a case at the end of a model: simulation history with the initial step, job container,
/// solution. Its alias is "Analysis Case." and the next number that no case of the model bears.
VEX_EXPORT vex::Feature& AddAnalysisCase(vex::Feature& model,
                                         HLXIAnalysisCase::analysisTypeEnum type);

/// Whether initial steps have containers of a late type.
bool IsInInitialSteps(std::string_view containerType);

/// Makes an initial step with its containers in front of all other steps of a simulation history.
vex::Feature& AddInitialStep(vex::Feature& history, std::string_view alias);

/// The element behaviour of a case, made when it has none.
VEX_EXPORT vex::Feature& AddElementBehavior(vex::Feature& analysisCase);

}  // namespace hlx
