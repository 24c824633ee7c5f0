// SPDX-License-Identifier: Apache-2.0
// Checks stored texts and makes outside bytes fit for a message.
#include "host/system/MessageTexts.h"

#include "host/system/Texts.h"

#include <fmt/format.h>

#include <cstring>

namespace vex::system {
namespace {

// `text` as text::AppendQuoted escapes it, without its quotes; double quotes stay as they are, and
// single quotes too unless they are to get a backslash.
std::string Escaped(std::string_view text, bool escapeSingleQuotes)
{
    std::string result;
    for (;;) {
        const std::size_t end = text.find_first_of("\"'");
        std::string piece;
        text::AppendQuoted(piece, text.substr(0, end));
        result.append(piece, 1, piece.size() - 2);
        if (end == std::string_view::npos) return result;
        if (escapeSingleQuotes && text[end] == '\'') result += '\\';
        result += text[end];
        text.remove_prefix(end + 1);
    }
}

}  // namespace

const char* TextFault(std::string_view text)
{
    if (text::IsValid(text)) return nullptr;
    return text.find('\0') == std::string_view::npos ? "holds bytes that are not valid UTF-8"
                                                     : "holds a NUL character";
}

std::string Printable(std::string_view text)
{
    return Escaped(text, false);
}

std::string Quoted(std::string_view text)
{
    return fmt::format("'{}'", Escaped(text, true));
}

std::string QuotedStart(std::string_view text)
{
    constexpr std::size_t most = 200;
    if (text.size() <= most) return Quoted(text);
    std::size_t size = most;
    while (size > most - 4 && (static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80U)
        --size;  // not within a character
    return fmt::format("{}... ({} bytes)", Quoted(text.substr(0, size)), text.size());
}

std::string NotEnoughMemory(std::string_view what)
{
    return fmt::format(
        "{}: there is not enough memory for it. Remove other documents and try again.", what);
}

std::string SystemReason(int code)
{
    // strerror would speak the locale's language.
    const char* description = strerrordesc_np(code);
    return description != nullptr ? description : fmt::format("error {}", code);
}

}  // namespace vex::system
