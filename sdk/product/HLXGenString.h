// SPDX-License-Identifier: Apache-2.0
// The product's growing text.
#pragma once

#include <string>
#include <string_view>
#include <utility>

class HLXGenString
{
public:
    HLXGenString() = default;
    explicit HLXGenString(std::string text) noexcept : _text(std::move(text)) {}

    /// The text, ended by a zero; valid until it changes or dies. Never null.
    const char* c_str() const noexcept { return _text.c_str(); }
    std::size_t Length() const noexcept { return _text.size(); }
    void Append(std::string_view tail) { _text += tail; }
    void Clear() noexcept { _text.clear(); }

private:
    std::string _text;
};
