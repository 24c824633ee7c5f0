// SPDX-License-Identifier: Apache-2.0
// Has the kernel translate a STEP file. To be run in a child process: a damaged file can crash or
// block it.
#pragma once

#include "host/topology/ChildProcess.h"

#include "host/product/GeometryKernel.h"

namespace vex::topology {

// Throws std::runtime_error with the place and the remedy, without the file's name, when there is
// nothing to hand out.
ImportedAssembly TranslateStep(const std::string& path, const ChildReport& report);

}  // namespace vex::topology
