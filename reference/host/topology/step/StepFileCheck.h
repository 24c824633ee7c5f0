// SPDX-License-Identifier: Apache-2.0
// Looks at a STEP file before the kernel does: it must be a file, start as one and be whole.
#pragma once

#include <string>

namespace vex::topology {

// What is wrong with the file at `path` and what can be done, without its name; empty when it may
// be translated.
std::string CheckStepFile(const std::string& path);

}  // namespace vex::topology
