// SPDX-License-Identifier: Apache-2.0
// Opens a component library of the geometry kernel after checking that it was built for this
// version.
#include "host/product/KernelModule.h"

#include "host/component/LibraryFile.h"
#include "host/product/GeometryKernel.h"
#include "host/system/MessageTexts.h"

#include <dlfcn.h>

namespace vex {
namespace {

std::string Refusal(const std::string& file, const std::string& reason, const std::string& remedy)
{
    return system::Quoted(file) + ": " + reason + ": " + remedy;
}

}  // namespace

void* OpenKernelModule(const std::vector<std::string>& directories, const std::string& fileName,
                       const char* version, const char* entry, std::string& error)
{
    std::string file;
    void* const library =
        OpenLibraryFile(directories, fileName, "Build or install it there.", file, error);
    if (library == nullptr) {
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
