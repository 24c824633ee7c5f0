// SPDX-License-Identifier: Apache-2.0
// Paths of linked documents: stored relative to the folder of the document that links them, so that
// documents can be moved together. Both operations look at texts only, never at the disk.
#pragma once

#include "VEXTypes.h"

#include <string>
#include <string_view>

namespace vex::store {

/// The path from the folder of `document` to `target`, never absolute ("../parts/a.VEXPart"). A
/// relative argument counts from the current folder. Empty when an argument is empty or the current
/// folder is needed and cannot be read.
VEX_EXPORT std::string MakeRelative(std::string_view document, std::string_view target);

/// Where `relative`, stored in `document`, leads: joined to the folder of `document`, "." and ".."
/// resolved. Absolute when `document` is. Empty when an argument is empty.
VEX_EXPORT std::string ResolveRelative(std::string_view document, std::string_view relative);

}  // namespace vex::store
