// SPDX-License-Identifier: Apache-2.0
// The step of a case that holds before all others.
#pragma once

#include "host/feature/Feature.h"

#include <string_view>

namespace hlx {

/// What an initial step is to be like.
struct InitialStepRequest
{
    std::string_view containerType;  ///< late type of a container that it has; empty: any
    std::string_view alias;          ///< empty: any
    bool make;                       ///< step and container, where they are missing
};

/// The first initial step of a case that is like that, or a new one; null when there is none and
/// none is to be made. A new one without an alias asked for is called "Initial".
vex::Feature* FindInitialStep(vex::Feature& analysisCase, const InitialStepRequest& request);

}  // namespace hlx
