// SPDX-License-Identifier: Apache-2.0
// Opens a component library of the geometry kernel after checking that it was built for this
// version.
#pragma once

#include "VEXTypes.h"

#include <string>
#include <vector>

namespace vex {

// The address of `entry` in the first `directories` entry that has `fileName`. `version` names a
// function `unsigned()` of the library, which must answer kGeometryKernelVersion. The library stays
// open. Null with a reason in `error` otherwise.
VEX_EXPORT void* OpenKernelModule(const std::vector<std::string>& directories,
                                  const std::string& fileName, const char* version,
                                  const char* entry, std::string& error);

}  // namespace vex
