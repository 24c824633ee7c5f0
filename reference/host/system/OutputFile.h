// SPDX-License-Identifier: Apache-2.0
// Files that the host writes besides what it stores: traces, counts.
#pragma once

#include "host/system/Descriptor.h"

#include <string>

namespace vex::system {

/// Opens `path` to be written from its beginning; it is made when it is not there. Never waits: a
/// pipe that nobody reads is refused. On failure the descriptor is none and errno tells why.
Descriptor OpenOutputFile(const std::string& path);

}  // namespace vex::system
