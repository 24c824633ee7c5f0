// SPDX-License-Identifier: Apache-2.0
// Finds and opens the geometry kernel's component library.
#pragma once

#include "host/product/GeometryKernel.h"

#include "VEXTypes.h"

#include <string>
#include <vector>

namespace vex {

// The kernel of the first `directories` entry that has libVEXTopology.so. The library is opened by
// the first call that succeeds and never closed; later calls give the same kernel, wherever they
// look. Null with a reason in `error` when no directory has the library, or the one found cannot be
// opened or was built for another version; that is not remembered, so a later call may succeed.
// Safe to call from several threads.
VEX_EXPORT GeometryKernel* LoadGeometryKernel(const std::vector<std::string>& directories,
                                              std::string& error);

}  // namespace vex
