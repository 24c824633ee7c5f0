// SPDX-License-Identifier: Apache-2.0
// The platform's text value: UTF-8 inside, copied by value, never null.
#pragma once

#include <compare>
#include <cstdio>
#include <ostream>
#include <string>
#include <string_view>

class VEXUnicodeString
{
public:
    /// Answer of Compare.
    enum Order : int { Before = 0, After = 1, Identical = 2 };

    VEXUnicodeString() = default;

    /// A null pointer makes an empty text.
    VEXUnicodeString(const char* text) : _text(text == nullptr ? "" : text) {}

    explicit VEXUnicodeString(std::string text) : _text(std::move(text)) {}

    /// The text as bytes (UTF-8), ended by a zero; valid until the string changes or dies. Never
    /// null.
    const char* ConvertToChar() const noexcept { return _text.c_str(); }

    std::string_view View() const noexcept { return _text; }
    int GetLengthInByte() const noexcept { return static_cast<int>(_text.size()); }
    bool IsEmpty() const noexcept { return _text.empty(); }

    VEXUnicodeString& Append(const VEXUnicodeString& tail)
    {
        _text += tail._text;
        return *this;
    }

    VEXUnicodeString& operator+=(const VEXUnicodeString& tail) { return Append(tail); }

    friend VEXUnicodeString operator+(VEXUnicodeString head, const VEXUnicodeString& tail)
    {
        return head.Append(tail);
    }

    /// Compares byte by byte: Identical (2) for identical texts, else whether this text stands
    /// Before (0) or After (1).
    int Compare(const VEXUnicodeString& other) const noexcept
    {
        const int order = _text.compare(other._text);
        return order == 0 ? Identical : (order < 0 ? Before : After);
    }

    friend bool operator==(const VEXUnicodeString& left, const VEXUnicodeString& right) noexcept
    {
        return left._text == right._text;
    }

    friend bool operator==(const VEXUnicodeString& left, const char* right) noexcept
    {
        return left._text == std::string_view(right == nullptr ? "" : right);
    }

    /// Replaces the first occurrence of `found` by `replacement`. Answers 1 when there was one,
    /// else 0; an empty `found` occurs nowhere.
    int ReplaceSubString(const VEXUnicodeString& found, const VEXUnicodeString& replacement)
    {
        const std::size_t position =
            found._text.empty() ? std::string::npos : _text.find(found._text);
        if (position == std::string::npos) {
            return 0;
        }
        _text.replace(position, found._text.size(), replacement._text);
        return 1;
    }

    /// Sets the text to a decimal number. `format` is a printf format for one int; a null one means
    /// "%d".
    void BuildFromNum(int number, const char* format = "%d")
    {
        char digits[64];
        // The format is the caller's, by contract.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
        std::snprintf(digits, sizeof digits, format == nullptr ? "%d" : format, number);
#pragma GCC diagnostic pop
        _text = digits;
    }

    friend std::ostream& operator<<(std::ostream& stream, const VEXUnicodeString& text)
    {
        return stream.write(text._text.data(), static_cast<std::streamsize>(text._text.size()));
    }

private:
    std::string _text;
};
