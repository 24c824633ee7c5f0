// SPDX-License-Identifier: Apache-2.0
// A reader of quoted texts that shares nothing with their writer.
#include "names/QuotedText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

namespace hlxtest {

namespace {

struct Range
{
    std::uint32_t first;
    std::uint32_t last;
};

/// What docs/tree-dump.md says is written \u{hex}, the three with an escape of their own among
/// them.
constexpr Range escapedRanges[] = {{0x00, 0x1F},     {0x7F, 0x9F},     {0x61C, 0x61C},
                                   {0x200E, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069}};

bool IsEscaped(std::uint32_t point)
{
    for (const Range& range : escapedRanges) {
        if (point >= range.first && point <= range.last) {
            return true;
        }
    }
    return false;
}

/// The character of UTF-8 at the front: the code point whose bytes these are.
std::optional<std::uint32_t> PointAt(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    std::size_t length = 1;
    std::uint32_t point = byte(0);
    if (point >= 0xC0) {
        length = point >= 0xF0 ? 4 : (point >= 0xE0 ? 3 : 2);
        point &= 0x7FU >> length;
        for (std::size_t i = 1; i < length; ++i) {
            if (i >= text.size()) return std::nullopt;
            point = (point << 6U) | (byte(i) & 0x3FU);
        }
    }
    const bool exists = point <= 0x10FFFF && (point < 0xD800 || point > 0xDFFF);
    return exists && text.starts_with(Utf8Of(point)) ? std::optional(point) : std::nullopt;
}

/// Hex digits, lower case; without a leading zero when `size` is 0, else exactly so many.
bool TakeHex(std::string_view& rest, std::size_t size, std::uint32_t& number)
{
    const std::size_t found = rest.find_first_not_of("0123456789abcdef");
    const std::size_t length = size != 0 ? size : (found == std::string_view::npos ? 0 : found);
    if (length == 0 || length > 6 || rest.size() < length || (size != 0 && found < size)) {
        return false;
    }
    if (size == 0 && rest[0] == '0' && length > 1) return false;
    const auto end = std::from_chars(rest.data(), rest.data() + length, number, 16);
    rest.remove_prefix(length);
    return end.ec == std::errc();
}

bool TakeEscape(std::string_view& rest, std::string& text)
{
    std::uint32_t point = 0;
    for (const auto& [letter, byte] :
         {std::pair{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'"', '"'}, {'\\', '\\'}}) {
        if (Take(rest, letter)) {
            text += byte;
            return true;
        }
    }
    if (Take(rest, 'x')) {
        text += TakeHex(rest, 2, point) ? static_cast<char>(point) : '\0';
        return point >= 0x80;
    }
    if (!Take(rest, "u{") || !TakeHex(rest, 0, point) || !Take(rest, '}')) return false;
    text += Utf8Of(point);
    return IsEscaped(point) && point != '\n' && point != '\r' && point != '\t';
}

/// A segment of a path: an alias, or a late type and its place.
bool TakeSegment(std::string_view& rest, std::vector<std::string>& aliases)
{
    if (rest.starts_with('"')) {
        return TakeQuoted(rest, aliases.emplace_back());
    }
    std::string_view type;
    return TakeWord(rest, type) && Take(rest, '[') && TakeNumber(rest) && Take(rest, ']');
}

}  // namespace

std::string Utf8Of(std::uint32_t point)
{
    const auto byte = [](std::uint32_t value) { return static_cast<char>(value); };
    const auto tail = [&](unsigned shift) { return byte(0x80U | ((point >> shift) & 0x3FU)); };
    if (point < 0x80) return {byte(point)};
    if (point < 0x800) return {byte(0xC0U | (point >> 6U)), tail(0)};
    if (point < 0x10000) return {byte(0xE0U | (point >> 12U)), tail(6), tail(0)};
    return {byte(0xF0U | (point >> 18U)), tail(12), tail(6), tail(0)};
}

bool Take(std::string_view& rest, char expected)
{
    const bool is = rest.starts_with(expected);
    rest.remove_prefix(is ? 1 : 0);
    return is;
}

bool Take(std::string_view& rest, std::string_view expected)
{
    const bool is = rest.starts_with(expected);
    rest.remove_prefix(is ? expected.size() : 0);
    return is;
}

bool TakeQuoted(std::string_view& rest, std::string& text)
{
    text.clear();
    if (!Take(rest, '"')) return false;
    while (!rest.empty()) {
        if (Take(rest, '"')) return true;
        if (Take(rest, '\\')) {
            if (!TakeEscape(rest, text)) return false;
            continue;
        }
        const auto point = PointAt(rest);
        if (!point || IsEscaped(*point)) return false;
        const std::size_t length = *point < 0x80 ? 1 : Utf8Of(*point).size();
        text.append(rest, 0, length);
        rest.remove_prefix(length);
    }
    return false;
}

std::string Unquoted(std::string_view quoted)
{
    std::string text;
    EXPECT_TRUE(TakeQuoted(quoted, text) && quoted.empty()) << "no quoted text";
    return text;
}

bool TakeNumber(std::string_view& rest)
{
    for (const std::string_view word : {"nan", "-nan", "inf", "-inf"}) {
        if (Take(rest, word)) return true;
    }
    const std::size_t found = rest.find_first_not_of("0123456789+-.e");
    const std::string_view digits = rest.substr(0, found);
    rest.remove_prefix(digits.size());
    double number = 0;
    std::int64_t whole = 0;
    const char* const end = digits.data() + digits.size();
    if (std::from_chars(digits.data(), end, whole).ptr == end && !digits.empty()) {
        return digits == std::to_string(whole) || digits == "-0";
    }
    std::array<char, 32> shortest{};
    const bool isNumber = std::from_chars(digits.data(), end, number).ptr == end;
    const char* const written =
        std::to_chars(shortest.data(), shortest.data() + shortest.size(), number).ptr;
    return isNumber && !digits.empty() && digits == std::string_view(shortest.data(), written);
}

bool TakeWord(std::string_view& rest, std::string_view& word)
{
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr std::string_view all =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";
    if (rest.empty() || letters.find(rest[0]) == std::string_view::npos) return false;
    word = rest.substr(0, rest.find_first_not_of(all));
    rest.remove_prefix(word.size());
    return true;
}

bool TakeReference(std::string_view& rest, std::vector<std::string>& aliases)
{
    if (Take(rest, "none") || Take(rest, '.')) return true;
    if (Take(rest, '#')) return TakeNumber(rest);
    Take(rest, '/');
    do {
        if (!TakeSegment(rest, aliases)) return false;
    } while (Take(rest, '/'));
    return true;
}

bool IsPlain(std::string_view text)
{
    while (!text.empty()) {
        const auto point = PointAt(text);
        if (!point || IsEscaped(*point)) return false;
        text.remove_prefix(Utf8Of(*point).size());
    }
    return true;
}

std::vector<std::string_view> LinesOf(std::string_view text)
{
    EXPECT_TRUE(text.empty() || text.ends_with('\n')) << "the last line is not ended";
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

}  // namespace hlxtest
