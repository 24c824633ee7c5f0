// SPDX-License-Identifier: Apache-2.0
// The platform's path services on its text type.
#pragma once

#include "VEXSystem.h"

namespace HLXPath {

/// Directory and name with one separator; empty when the platform cannot join them.
inline VEXUnicodeString Join(const VEXUnicodeString& directory, const VEXUnicodeString& name)
{
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
