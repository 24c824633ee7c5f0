// SPDX-License-Identifier: Apache-2.0
// The form of what is said about a catalogue: file, line, entry, reason with remedy.
#pragma once

#include "host/system/Texts.h"

namespace hlx {

/// @param line  0 where no line is concerned @param entry  empty where no entry is concerned
inline std::string CatalogMessage(std::string_view fileName, std::size_t line,
                                  std::string_view entry, std::string_view reason)
{
    std::string message = "catalogue " + vex::text::DoubleQuoted(fileName);
    if (line != 0) {
        message += ", line " + std::to_string(line);
    }
    if (!entry.empty()) {
        message += ", ";
        message += entry;
    }
    message += ": ";
    message += reason;
    return message;
}

}  // namespace hlx
