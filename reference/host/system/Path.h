// SPDX-License-Identifier: Apache-2.0
// The rules for the path of a file this system stores: a path is a path, never a URI or a keyword.
#pragma once

#include "VEXTypes.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vex::system {

/// The longest last part of a path, in bytes: a file system allows 255, and the name of the new
/// file that replaces an old one (see AtomicFile) is 8 bytes longer than the name it stands for.
inline constexpr std::size_t kMaximumNameBytes = 247;

/// Whether `path` can name a stored file: it is not empty, holds no NUL, its last part is not
/// empty, `.` or `..`, and has at most kMaximumNameBytes bytes. If not, `error` gets the whole
/// message.
VEX_EXPORT bool CheckPath(std::string_view path, std::string& error);

/// The path of the folder that holds `path`: "." when it has no folder part.
VEX_EXPORT std::string FolderOf(std::string_view path);

/// The folders that the environment variable names, in order, separated by ':'; empty ones are left
/// out. None when it is not set.
VEX_EXPORT std::vector<std::string> FoldersNamedIn(const char* variable);

}  // namespace vex::system
