// SPDX-License-Identifier: Apache-2.0
// Makes and resolves relative paths, lexically.
#include "host/store/LinkPath.h"

#include <filesystem>
#include <system_error>

namespace vex::store {

namespace fs = std::filesystem;

std::string MakeRelative(std::string_view document, std::string_view target)
{
    if (document.empty() || target.empty()) return "";
    std::error_code code;
    fs::path from(document);
    fs::path to(target);
    if (from.is_absolute() != to.is_absolute() || from.is_relative()) {
        from = fs::absolute(from, code);
        if (code) return "";
        to = fs::absolute(to, code);
        if (code) return "";
    }
    const fs::path folder = from.lexically_normal().parent_path();
    return to.lexically_normal().lexically_relative(folder).string();
}

std::string ResolveRelative(std::string_view document, std::string_view relative)
{
    if (document.empty() || relative.empty()) return "";
    return (fs::path(document).parent_path() / fs::path(relative)).lexically_normal().string();
}

}  // namespace vex::store
