// SPDX-License-Identifier: Apache-2.0
// What must hold of any file that is read as settings.
#pragma once

#include "FuzzProcess.h"

#include <map>

namespace hlxfuzz {

/// Loads the file. It is refused, is never replaced then and stays as it is; or it holds `expected`
/// at least, takes another setting, and holds both when it is read again.
/// @return whether it was read
bool CheckSettings(const std::string& path, const std::map<std::string, std::string>& expected);

}  // namespace hlxfuzz
