// SPDX-License-Identifier: Apache-2.0
// The platform's path services on its text type.
#pragma once

#include "VEXSystem.h"

namespace HLXPath {

/// Directory and name with one separator; empty when the platform cannot join them, or would cut
/// them at a zero.
inline VEXUnicodeString Join(const VEXUnicodeString& directory, const VEXUnicodeString& name)
{
    for (const VEXUnicodeString* const text : {&directory, &name}) {
        if (text->View().find('\0') != std::string_view::npos) return {};
    }
    char path[VEXMaxPathSize] = "";
    VEXMakePath(directory.ConvertToChar(), name.ConvertToChar(), path);
    return path;
}

/// What follows the last separator; empty when the platform cannot split the path.
inline VEXUnicodeString FileName(const VEXUnicodeString& path)
{
    char directory[VEXMaxPathSize] = "";
    char name[VEXMaxPathSize] = "";
    VEXSplitPath(path.ConvertToChar(), directory, name);
    return name;
}

}  // namespace HLXPath
