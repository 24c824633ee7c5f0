// SPDX-License-Identifier: Apache-2.0
// Checks paths of stored files, and takes paths apart.
#include "host/system/Path.h"

#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>

namespace vex::system {

bool CheckPath(std::string_view path, std::string& error)
{
    const auto refuse = [&](std::string_view reason) {
        error = fmt::format("{}: {}. Give the path of a file.", Quoted(path), reason);
        return false;
    };
    if (path.empty()) return refuse("the path is empty");
    if (path.find('\0') != std::string_view::npos) return refuse("the path holds a NUL character");
    const std::string_view name = path.substr(path.rfind('/') + 1);
    if (name.empty() || name == "." || name == "..") {
        return refuse("the last part of the path names a folder, not a file");
    }
    if (name.size() > kMaximumNameBytes) {
        return refuse(fmt::format("the file name has {} bytes, more than the {} allowed",
                                  name.size(), kMaximumNameBytes));
    }
    return true;
}

std::string FolderOf(std::string_view path)
{
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos) return ".";
    return std::string(path.substr(0, slash == 0 ? 1 : slash));
}

std::vector<std::string> FoldersNamedIn(const char* variable)
{
    std::vector<std::string> folders;
    const char* const setting = std::getenv(variable);
    std::string_view rest = setting == nullptr ? "" : setting;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(':'), rest.size());
        if (end > 0) folders.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return folders;
}

}  // namespace vex::system
