// SPDX-License-Identifier: Apache-2.0
// Opens a component library of the geometry kernel after checking that it was built for this
// version.
#include "host/product/KernelModule.h"

#include "host/product/GeometryKernel.h"
#include "host/system/MessageTexts.h"

#include <dlfcn.h>

#include <filesystem>

namespace vex {
namespace {

std::string Refusal(const std::string& file, const std::string& reason, const std::string& remedy)
{
    return system::Quoted(file) + ": " + reason + ": " + remedy;
}

std::string FindFile(const std::vector<std::string>& directories, const std::string& fileName)
{
    for (const std::string& directory : directories) {
        const std::filesystem::path candidate = std::filesystem::path(directory) / fileName;
        std::error_code ignored;
        if (std::filesystem::exists(candidate, ignored)) {
            // A name without a slash would send dlopen along the system's own search path.
            return std::filesystem::absolute(candidate, ignored).string();
        }
    }
    return {};
}

std::string LastLoaderError()
{
    const char* text = dlerror();
    return text == nullptr ? "unknown error" : text;
}

}  // namespace

void* OpenKernelModule(const std::vector<std::string>& directories, const std::string& fileName,
                       const char* version, const char* entry, std::string& error)
{
    const std::string file = FindFile(directories, fileName);
    if (file.empty()) {
        std::string searched;
        for (const std::string& directory : directories) {
            searched += (searched.empty() ? "" : ", ") + system::Quoted(directory);
        }
        error = Refusal(fileName, "not found in " + (searched.empty() ? "any directory" : searched),
                        "build or install it there");
        return nullptr;
    }
    void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        error = Refusal(file, "cannot be opened (" + LastLoaderError() + ")",
                        "install what it needs, or build it again");
        return nullptr;
    }
    using VersionFunction = unsigned (*)();
    const auto versionOf = reinterpret_cast<VersionFunction>(dlsym(library, version));
    void* address = dlsym(library, entry);
    if (versionOf == nullptr || address == nullptr) {
        error = Refusal(file,
                        std::string("has no function ") + (versionOf == nullptr ? version : entry),
                        "it is another library of that name; put the right one there");
        dlclose(library);
        return nullptr;
    }
    if (const unsigned found = versionOf(); found != kGeometryKernelVersion) {
        error = Refusal(file,
                        "built for version " + std::to_string(found) + ", version " +
                            std::to_string(kGeometryKernelVersion) + " is needed",
                        "build it again with this host");
        dlclose(library);
        return nullptr;
    }
    return address;
}

}  // namespace vex
