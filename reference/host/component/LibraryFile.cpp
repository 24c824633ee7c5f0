// SPDX-License-Identifier: Apache-2.0
// Search along folders, and the loader's reasons.
#include "host/component/LibraryFile.h"

#include "host/system/MessageTexts.h"

#include <dlfcn.h>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <filesystem>

namespace vex {

namespace {

std::string FindFile(const std::vector<std::string>& folders, const std::string& fileName)
{
    for (const std::string& folder : folders) {
        const std::filesystem::path candidate = std::filesystem::path(folder) / fileName;
        std::error_code ignored;
        if (std::filesystem::exists(candidate, ignored)) {
            // A name without a slash would send dlopen along the system's own search path.
            return std::filesystem::absolute(candidate, ignored).string();
        }
    }
    return {};
}

std::string LoaderReason()
{
    const char* const reason = dlerror();
    return reason == nullptr ? "no reason given" : system::Printable(reason);
}

}  // namespace

void* OpenLibraryFile(const std::vector<std::string>& folders, const std::string& fileName,
                      std::string_view remedy, std::string& path, std::string& error)
{
    path = FindFile(folders, fileName);
    if (path.empty()) {
        const std::string searched =
            folders.empty() ? "any folder" : fmt::format("{}", fmt::join(folders, ", "));
        error = fmt::format("no {} in {}. {}", fileName, system::Printable(searched), remedy);
        return nullptr;
    }
    void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        error =
            fmt::format("{}: it cannot be opened: {}. Install what it needs, or build it again.",
                        system::Quoted(path), LoaderReason());
    }
    return library;
}

}  // namespace vex
