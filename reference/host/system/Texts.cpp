// SPDX-License-Identifier: Apache-2.0
// Validity, quoting and numbers.
#include "host/system/Texts.h"

#include "host/system/TextBuffer.h"

#include <charconv>
#include <cstdint>
#include <cstring>

namespace vex::text {

namespace {

constexpr char hexDigits[] = "0123456789abcdef";

constexpr std::uint64_t highBits = 0x8080808080808080U;
constexpr std::uint64_t ones = 0x0101010101010101U;

/// Length of the well-formed sequence at the start of `text`, and its code point; 0 when there is
/// none.
std::size_t Decode(std::string_view text, char32_t& point)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(0);
    if (first < 0x80) {
        point = first;
        return 1;
    }
    const std::size_t length = first >= 0xF0 ? 4 : (first >= 0xE0 ? 3 : 2);
    if (first < 0xC2 || first > 0xF4 || text.size() < length) {
        return 0;
    }
    point = static_cast<char32_t>(first & (0xFFU >> (length + 1)));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) {
            return 0;
        }
        point = (point << 6U) | (byte(i) & 0x3FU);
    }
    const bool overlong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
    return overlong || surrogate || point > 0x10FFFF ? 0 : length;
}

bool IsControl(char32_t point)
{
    return point < 0x20 || (point >= 0x7F && point < 0xA0) || point == 0x061C ||
           (point >= 0x200E && point <= 0x200F) || (point >= 0x2028 && point <= 0x202E) ||
           (point >= 0x2066 && point <= 0x2069);
}

template <class Text>
void AppendCodePoint(Text& out, char32_t point)
{
    char digits[8];
    const char* const end =
        std::to_chars(digits, digits + sizeof digits, static_cast<std::uint32_t>(point), 16).ptr;
    out += "\\u{";
    out.append(digits, static_cast<std::size_t>(end - digits));
    out += '}';
}

/// Length of the ASCII at the start of `text`, up to a NUL: most texts are nothing else.
std::size_t AsciiLength(std::string_view text)
{
    std::size_t length = 0;
    for (std::uint64_t word = 0; text.size() - length >= sizeof word; length += sizeof word) {
        std::memcpy(&word, text.data() + length, sizeof word);
        if ((((word - ones) | word) & highBits) != 0) {
            break;
        }
    }
    while (length < text.size() && static_cast<signed char>(text[length]) > 0) {
        ++length;
    }
    return length;
}

/// Whether one of eight characters is not quoted as it is: a control character, a quote, a
/// backslash, or not ASCII. A difference that borrows from the next character does so only behind
/// one that is found.
bool HoldsEscaped(std::uint64_t word)
{
    const std::uint64_t quotes = word ^ ('"' * ones);
    const std::uint64_t backslashes = word ^ ('\\' * ones);
    const std::uint64_t found = ((word - ' ' * ones) & ~word) | ((quotes - ones) & ~quotes) |
                                ((backslashes - ones) & ~backslashes) | (word + ones) | word;
    return (found & highBits) != 0;
}

/// Length of what stands at the start of `text` and is quoted as it is.
std::size_t UnescapedLength(std::string_view text)
{
    const auto isPlain = [&](std::size_t start) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + start, sizeof word);
        return !HoldsEscaped(word);
    };
    std::size_t length = 0;
    while (text.size() - length >= sizeof(std::uint64_t) && isPlain(length)) {
        length += sizeof(std::uint64_t);
    }
    // What is left is less than a word: the last word holds it, and some of what is known.
    if (length > 0 && text.size() - length < sizeof(std::uint64_t) &&
        isPlain(text.size() - sizeof(std::uint64_t))) {
        return text.size();
    }
    while (length < text.size() && text[length] >= ' ' && text[length] < '\x7F' &&
           text[length] != '"' && text[length] != '\\') {
        ++length;
    }
    return length;
}

}  // namespace

bool IsValid(std::string_view text)
{
    for (text.remove_prefix(AsciiLength(text)); !text.empty();
         text.remove_prefix(AsciiLength(text))) {
        char32_t point = 0;
        const std::size_t length = Decode(text, point);
        if (length == 0 || point == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

template <class Text>
void AppendQuoted(Text& out, std::string_view text)
{
    out += '"';
    for (;;) {
        const std::size_t unescaped = UnescapedLength(text);
        out.append(text.data(), unescaped);
        text.remove_prefix(unescaped);
        if (text.empty()) {
            break;
        }
        char32_t point = 0;
        const std::size_t length = Decode(text, point);
        if (length == 0) {
            const auto byte = static_cast<unsigned char>(text[0]);
            out += "\\x";
            out += hexDigits[byte >> 4U];
            out += hexDigits[byte & 0xFU];
            text.remove_prefix(1);
            continue;
        }
        if (point == U'"' || point == U'\\') {
            out += '\\';
            out += text[0];
        } else if (point == U'\n') {
            out += "\\n";
        } else if (point == U'\r') {
            out += "\\r";
        } else if (point == U'\t') {
            out += "\\t";
        } else if (IsControl(point)) {
            AppendCodePoint(out, point);
        } else {
            out += text.substr(0, length);
        }
        text.remove_prefix(length);
    }
    out += '"';
}

std::string DoubleQuoted(std::string_view text)
{
    std::string quoted;
    AppendQuoted(quoted, text);
    return quoted;
}

template <class Text>
void AppendNumber(Text& out, double number)
{
    char digits[32];
    const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    out.append(digits, static_cast<std::size_t>(end - digits));
}

template <class Text>
void AppendNumber(Text& out, std::int64_t number)
{
    char digits[24];
    const char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    out.append(digits, static_cast<std::size_t>(end - digits));
}

template void AppendQuoted(std::string&, std::string_view);
template void AppendQuoted(TextBuffer&, std::string_view);
template void AppendNumber(std::string&, double);
template void AppendNumber(TextBuffer&, double);
template void AppendNumber(std::string&, std::int64_t);
template void AppendNumber(TextBuffer&, std::int64_t);

}  // namespace vex::text
