// SPDX-License-Identifier: Apache-2.0
// The kernel's names, which are UTF-16, as UTF-8.
#include "host/topology/step/Utf8Text.h"

namespace vex::topology {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

void Append(std::string& utf8, char32_t code)
{
    const auto tail = [&](int shift) {
        utf8 += static_cast<char>(0x80 | ((code >> shift) & 0x3F));
    };
    if (code < 0x80) {
        utf8 += static_cast<char>(code);
    } else if (code < 0x800) {
        utf8 += static_cast<char>(0xC0 | (code >> 6));
        tail(0);
    } else if (code < 0x10000) {
        utf8 += static_cast<char>(0xE0 | (code >> 12));
        tail(6);
        tail(0);
    } else {
        utf8 += static_cast<char>(0xF0 | (code >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

bool IsHigh(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLow(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

}  // namespace

std::string Utf8Text(const TCollection_ExtendedString& text)
{
    std::string utf8;
    const int length = text.Length();
    for (int i = 1; i <= length; ++i) {
        char32_t code = text.Value(i);
        if (IsHigh(code) && i < length && IsLow(text.Value(i + 1))) {
            code = 0x10000 + ((code - 0xD800) << 10) + (text.Value(++i) - 0xDC00U);
        } else if (IsHigh(code) || IsLow(code)) {
            code = kReplacement;
        }
        if (code != 0) Append(utf8, code);
    }
    return utf8;
}

}  // namespace vex::topology
