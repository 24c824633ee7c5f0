// SPDX-License-Identifier: Apache-2.0
// Finds and opens shared libraries by their file names.
#pragma once

#include "VEXTypes.h"

#include <string>
#include <string_view>
#include <vector>

namespace vex {

/// Opens the file of that name in the first of the folders that has it. It stays open until the
/// caller closes it.
/// @param remedy  what to do when none has it, as the message ends
/// @param path    receives its absolute path; empty when no folder has it
/// @return the loader's handle; null with reason and remedy in `error`
VEX_EXPORT void* OpenLibraryFile(const std::vector<std::string>& folders,
                                 const std::string& fileName, std::string_view remedy,
                                 std::string& path, std::string& error);

}  // namespace vex
