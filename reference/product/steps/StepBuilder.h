// SPDX-License-Identifier: Apache-2.0
// Makes analysis steps with the containers that stand in a new one. Containers of output requests
// are made when first needed.
#pragma once

#include "host/feature/Feature.h"

namespace hlx {

/// The simulation history of a case, below which its steps stand; null when there is none.
vex::Feature* HistoryOf(const vex::Feature& analysisCase);

/// Makes a step at the end of a case's simulation history.
/// @param lateType  a kind of step, such as "HLXGeneralStaticStepLT"
/// @param name      its alias; empty for none
/// @return the step, not counted; null, with the reason in `error` and nothing made, when the case
/// is gone or has no simulation history, the type is no kind of step, or the name is not valid
/// UTF-8
VEX_EXPORT vex::Feature* AddStep(vex::Feature& analysisCase, std::string_view lateType,
                                 std::string_view name, std::string& error);

}  // namespace hlx
