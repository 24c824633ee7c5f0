// SPDX-License-Identifier: Apache-2.0
// The host's own component library: its rows, as a library of somebody else would export them.
#pragma once

#include "VEXComponentLibrary.h"

namespace vex {

/// Defined with the host's table, in reference/host/analysis/HostComponents.cpp.
const VEXComponentLibrary& HostComponentLibrary();

}  // namespace vex
