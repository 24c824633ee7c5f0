// SPDX-License-Identifier: Apache-2.0
// What a stored text may hold, and how bytes that came from outside are shown in a message.
#pragma once

#include "VEXTypes.h"

#include <string>
#include <string_view>

namespace vex::system {

/// Why `text` cannot be stored, or null when it can: a stored text is valid UTF-8 (shortest forms
/// only, no surrogates) and holds no NUL. The answer is a constant that completes "the text ...".
VEX_EXPORT const char* TextFault(std::string_view text);

/// `text` with control characters, backslashes and bytes that are not UTF-8 escaped, so that
/// nothing a file or a name holds can forge a line of a message or disturb a terminal.
VEX_EXPORT std::string Printable(std::string_view text);

/// Printable text in single quotes (a quote inside is escaped): the form of names in messages.
VEX_EXPORT std::string Quoted(std::string_view text);

/// As Quoted, of a long text the beginning only: names in a file may have any length.
VEX_EXPORT std::string QuotedStart(std::string_view text);

/// The message that there is not enough memory for `what`, a name as messages show it.
VEX_EXPORT std::string NotEnoughMemory(std::string_view what);

/// The system's description of the error number `code`, in English whatever the locale.
VEX_EXPORT std::string SystemReason(int code);

}  // namespace vex::system
