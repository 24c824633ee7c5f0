// SPDX-License-Identifier: Apache-2.0
// Finding the catalogue file and adding its types to the registry.
#include "host/component/ComponentTypes.h"
#include "host/system/Path.h"
#include "product/catalog/CatalogFile.h"
#include "product/catalog/CatalogMessage.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace hlx {

namespace {

/// No catalogue comes near this; a file above it is some other file.
constexpr std::uintmax_t largestCatalog = std::uintmax_t{16} << 20U;

bool ReadFile(const std::string& path, std::string& text, std::string& error)
{
    std::error_code code;
    if (!std::filesystem::is_regular_file(path, code)) {
        error = CatalogMessage(path, 0, {}, "no readable file; put the catalogue in its place");
        return false;
    }
    if (std::filesystem::file_size(path, code) > largestCatalog || code) {
        error = CatalogMessage(
            path, 0, {}, "longer than 16 MiB, so no catalogue; put the catalogue in its place");
        return false;
    }
    std::ifstream stream(path, std::ios::binary);
    text.assign(std::istreambuf_iterator<char>(stream), {});
    if (!stream.good() && !stream.eof()) {
        error = CatalogMessage(path, 0, {}, "cannot be read; check its permissions");
        return false;
    }
    return true;
}

}  // namespace

std::vector<std::string> CatalogFolders()
{
    std::vector<std::string> folders = vex::system::FoldersNamedIn("VEX_CATALOG_PATH");
    // The host's own folder is the last one in which component libraries are looked for.
    if (const std::vector<std::string> libraries = vex::ComponentTypes::SearchPath();
        !libraries.empty()) {
        folders.push_back(libraries.back() + "/../share/hlx");
    }
    return folders;
}

bool LoadCatalog(const std::vector<std::string>& folders, std::string& error)
{
    std::string searched;
    for (const std::string& folder : folders) {
        const std::string path = folder + "/" + catalogFileName;
        std::error_code code;
        if (!std::filesystem::exists(path, code) && !code) {
            searched += " " + vex::text::DoubleQuoted(folder);
            continue;
        }
        std::string text;
        std::vector<vex::LateTypeDefinition> types;
        if (!ReadFile(path, text, error) || !ReadCatalog(text, path, types, error)) {
            return false;
        }
        if (!vex::LateTypes::Instance().Add(std::move(types), error)) {
            error = CatalogMessage(path, 0, {}, error);
            return false;
        }
        return true;
    }
    error = CatalogMessage(catalogFileName, 0, {},
                           "found in none of the folders" + searched +
                               "; name the folder that holds it in VEX_CATALOG_PATH");
    return false;
}

}  // namespace hlx
