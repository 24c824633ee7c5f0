// SPDX-License-Identifier: Apache-2.0
// File names of documents that are made from names of parts and products.
#pragma once

#include "VEXTypes.h"

#include <map>
#include <set>
#include <string>
#include <string_view>

namespace vex {

/// Gives file names that stay in their folder and differ from each other, upper and lower case not
/// counting.
class VEX_EXPORT DocumentNames
{
public:
    /// The longest file name given, in bytes, its ending included.
    static constexpr std::size_t longest = 200;

    /// A file name with the ending `.type`. What cannot stand in a file name (separators, control
    /// characters, bytes that are not UTF-8, a dot in front) becomes "_"; a name taken already gets
    /// "_2", "_3", … An empty name becomes the type's.
    std::string Give(std::string_view name, std::string_view type);

private:
    std::set<std::string> _given;      ///< in lower case
    std::map<std::string, int> _uses;  ///< how often each name was asked for, in lower case
};

}  // namespace vex
