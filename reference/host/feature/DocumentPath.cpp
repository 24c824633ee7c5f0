// SPDX-License-Identifier: Apache-2.0
// Absolute and canonical forms of paths of documents.
#include "host/feature/DocumentPath.h"

#include "host/system/MessageTexts.h"
#include "host/system/Path.h"

#include <filesystem>
#include <system_error>

namespace vex {

namespace fs = std::filesystem;

std::string AbsoluteDocumentPath(std::string_view path, std::string& error)
{
    if (!system::CheckPath(path, error)) {
        return {};
    }
    if (const char* const fault = system::TextFault(path)) {
        error = system::Quoted(path) + ": the text " + fault + ". Rename the file or its folder.";
        return {};
    }
    std::error_code code;
    const fs::path absolute = fs::absolute(fs::path(path), code);
    // ".." behind a symbolic link leads elsewhere than the text says: the disk is asked for the
    // folder.
    const fs::path folder = fs::weakly_canonical(absolute.parent_path(), code);
    if (code) {
        error = system::Quoted(path) + ": " + system::SystemReason(code.value()) +
                ". Give a path in a folder that can be reached.";
        return {};
    }
    const fs::path plain = absolute.lexically_normal();
    const bool isPlain = plain.native() == absolute.native() ||
                         (fs::weakly_canonical(plain.parent_path(), code) == folder && !code);
    std::string whole = isPlain ? plain.string() : (folder / absolute.filename()).string();
    // A relative path stands in the current folder, whatever bytes that one is called by.
    if (const char* const fault = system::TextFault(whole)) {
        error = system::Quoted(whole) + ": the text " + fault + ". Rename the folder.";
        return {};
    }
    return whole;
}

std::string DocumentPathIdentity(const std::string& absolutePath)
{
    std::error_code code;
    const fs::path canonical = fs::weakly_canonical(absolutePath, code);
    return code ? absolutePath : canonical.string();
}

}  // namespace vex
