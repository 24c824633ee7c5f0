// SPDX-License-Identifier: Apache-2.0
// Entry of libVEXStepReader.so, which only VEXTopology opens. Reading STEP is a library of its own
// because linking the kernel's data exchange costs time that geometry without import need not pay.
#pragma once

#include "host/product/GeometryKernel.h"

namespace vex::topology {

// As GeometryKernel::ReadStep; may throw std::bad_alloc and std::system_error.
using StepReaderFunction = bool (*)(const std::string& path, ImportedAssembly& out,
                                    std::string& error);

}  // namespace vex::topology

extern "C" {
__attribute__((visibility("default"))) bool VEXStepReaderRead(const std::string& path,
                                                              vex::ImportedAssembly& out,
                                                              std::string& error);
__attribute__((visibility("default"))) unsigned VEXStepReaderVersion();
}
