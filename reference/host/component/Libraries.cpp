// SPDX-License-Identifier: Apache-2.0
// Component libraries: finding, opening, keeping. None is ever unloaded.
#include "host/component/ComponentTypes.h"
#include "host/component/HostLibrary.h"
#include "host/component/LibraryFile.h"
#include "host/system/MessageTexts.h"
#include "host/system/Path.h"

#include <dlfcn.h>
#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <utility>

namespace vex {

namespace {

using system::Quoted;

/// Libraries that every program has beside the host.
constexpr const char* residentLibraries[] = {"HLXProduct"};

/// Libraries that come with the product and are loaded when first asked for.
constexpr const char* librariesOnDemand[] = {"HLXIfwExportTraverser"};

/// A name that stays within the folders of the search path.
bool IsLibraryName(std::string_view name)
{
    return !name.empty() && name.size() < 200 && std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '_';
    });
}

std::string Absolute(const std::string& path)
{
    std::error_code fault;
    const std::filesystem::path absolute = std::filesystem::absolute(path, fault);
    return fault ? path : absolute.lexically_normal().string();
}

/// The folder of the file that holds the host: of its library, or of the program it was linked
/// into.
std::string HostFolder()
{
    Dl_info information{};
    if (dladdr(reinterpret_cast<const void*>(&HostFolder), &information) == 0 ||
        information.dli_fname == nullptr) {
        return ".";
    }
    return std::filesystem::path(Absolute(information.dli_fname)).parent_path().string();
}

/// The opened library lib<name>.so; null with the reason in `error`. `file` receives its path.
void* Open(std::string_view name, std::string& file, std::string& error)
{
    file = fmt::format("lib{}.so", name);
    // One that the program was linked with is the one to use, wherever it lies.
    if (void* const present = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NOLOAD)) {
        return present;
    }
    const std::string fileName = file;
    void* const library =
        OpenLibraryFile(ComponentTypes::SearchPath(), fileName,
                        "Put it there, or name its folder in VEX_COMPONENT_PATH.", file, error);
    if (library == nullptr && file.empty()) {
        error = fmt::format("component library '{}': {}", name, error);
    }
    return library;
}

/// The folders that the user names.
std::vector<std::string> FoldersOfUser()
{
    std::vector<std::string> folders = system::FoldersNamedIn("VEX_COMPONENT_PATH");
    std::transform(folders.begin(), folders.end(), folders.begin(), Absolute);
    return folders;
}

/// The names of the libraries in a folder, sorted.
std::vector<std::string> LibrariesIn(const std::string& folder)
{
    std::vector<std::string> names;
    std::error_code fault;
    for (std::filesystem::directory_iterator file(folder, fault), end; !fault && file != end;
         file.increment(fault)) {
        const std::string name = file->path().filename().string();
        if (name.size() > 6 && name.starts_with("lib") && name.ends_with(".so")) {
            names.push_back(name.substr(3, name.size() - 6));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

std::vector<std::string> ComponentTypes::SearchPath()
{
    std::vector<std::string> folders = FoldersOfUser();
    folders.push_back(HostFolder());
    return folders;
}

const ComponentType* ComponentTypes::FindAhead(std::string_view name)
{
    std::vector<std::string> libraries(std::begin(librariesOnDemand), std::end(librariesOnDemand));
    for (const std::string& folder : FoldersOfUser()) {
        const std::vector<std::string> there = LibrariesIn(folder);
        libraries.insert(libraries.end(), there.begin(), there.end());
    }
    const ComponentType* found = Find(name);
    for (auto library = libraries.begin(); found == nullptr && library != libraries.end();
         ++library) {
        // One that is refused is refused again, with its reason, when the program asks for it.
        if (std::string ignored; Load(*library, ignored)) {
            found = Find(name);
        }
    }
    return found;
}

void ComponentTypes::LoadResident()
{
    // Set first: a library that starts asks for rows itself.
    if (std::exchange(_residentLoaded, true)) {
        return;
    }
    std::string error;
    if (!Merge(HostComponentLibrary(), error)) {
        std::fprintf(stderr, "%s\n", error.c_str());
    }
    for (const char* const name : residentLibraries) {
        if (!Load(name, error)) {
            std::fprintf(stderr, "%s\n", error.c_str());
        }
    }
}

bool ComponentTypes::Load(std::string_view name, std::string& error)
{
    LoadResident();
    if (_merged.contains(name)) {
        return true;
    }
    if (!IsLibraryName(name)) {
        error = fmt::format("{} is no name of a component library: letters, digits and underscores",
                            Quoted(name));
        return false;
    }
    std::string file;
    void* const library = Open(name, file, error);
    if (library == nullptr) {
        return false;
    }
    const auto refuse = [&](const std::string& reason) {
        error = fmt::format("{}: {}", Quoted(file), reason);
        return false;
    };
    const auto entry =
        reinterpret_cast<VEXComponentLibraryFunction>(dlsym(library, VEXComponentLibraryEntry));
    if (entry == nullptr) {
        return refuse(fmt::format(
            "it has no function {}: it is no component library; put the right one there",
            VEXComponentLibraryEntry));
    }
    const VEXComponentLibrary* const table = entry();
    if (table == nullptr) {
        return refuse(fmt::format("its function {} answers no table: build it again",
                                  VEXComponentLibraryEntry));
    }
    // Of a table of another version nothing but the version can be read.
    if (table->Version == VEXComponentLibraryVersion &&
        (table->Name == nullptr || name != table->Name)) {
        return refuse(fmt::format("it calls itself {}: give the file the name of the library",
                                  Quoted(table->Name == nullptr ? "" : table->Name)));
    }
    if (std::string reason; !Merge(*table, reason)) {
        return refuse(reason);
    }
    return true;
}

}  // namespace vex
