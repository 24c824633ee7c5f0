// SPDX-License-Identifier: Apache-2.0
// Texts of the host: validity, quoting and shortest numbers. Everything that a person or a file
// gets to see goes through these, so that no name can forge a line and no locale can change a byte.
#pragma once

#include "VEXTypes.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vex::text {

// What is appended to, a `Text`, is a std::string or a TextBuffer.

/// True for well-formed UTF-8 (no overlong forms, no surrogates, nothing above U+10FFFF) without a
/// zero byte.
VEX_EXPORT bool IsValid(std::string_view text);

/// Appends the text in double quotes. Inside them a quote and a backslash get a backslash before
/// them; line feed, carriage return and tab are written \n, \r and \t; any other control character
/// (C0, DEL, C1) and the bidirectional and line-separating controls of Unicode are written \u{hex};
/// a byte that is not valid UTF-8 is written \x and two hex digits.
template <class Text>
VEX_EXPORT void AppendQuoted(Text& out, std::string_view text);

/// The text as AppendQuoted writes it.
VEX_EXPORT std::string DoubleQuoted(std::string_view text);

/// Appends the shortest decimal text that reads back as the same number ("0.1", "1e+30", "nan",
/// "-inf").
template <class Text>
VEX_EXPORT void AppendNumber(Text& out, double number);
template <class Text>
VEX_EXPORT void AppendNumber(Text& out, std::int64_t number);

}  // namespace vex::text
