// SPDX-License-Identifier: Apache-2.0
// Numbers in names, messages and reports. Neither locale nor stream changes a byte of them.
#pragma once

#include "VEXUnicodeString.h"

#include <charconv>
#include <iterator>
#include <string>

namespace HLXNumber {

/// The decimal text of a number, without padding.
inline VEXUnicodeString Decimal(int number)
{
    VEXUnicodeString text;
    text.BuildFromNum(number);
    return text;
}

/// The text of a number in general notation: six significant digits without zeros at their end, and
/// an exponent of at least three digits where it is below -4 or above 5, such as 0.5, 1.23457e+006.
inline VEXUnicodeString General(double number)
{
    char characters[32];
    const auto written = std::to_chars(std::begin(characters), std::end(characters), number,
                                       std::chars_format::general, 6);
    std::string text(std::begin(characters), written.ptr);
    if (const std::size_t exponent = text.find('e'); exponent != std::string::npos) {
        const std::size_t digits = text.size() - exponent - 2;
        text.insert(exponent + 2, digits < 3 ? 3 - digits : 0, '0');
    }
    return VEXUnicodeString(text);
}

}  // namespace HLXNumber
