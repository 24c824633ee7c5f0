// SPDX-License-Identifier: Apache-2.0
// The library's messages on standard output, and some on standard error: bytes as they are,
// whatever locale, width or flags the stream was left with.
#pragma once

#include "VEXUnicodeString.h"

#include <iostream>

namespace HLXConsole {

inline void Write(std::string_view text)
{
    std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
}

inline std::string_view TextOf(const char* text)
{
    return text == nullptr ? std::string_view() : std::string_view(text);
}

inline std::string_view TextOf(const std::string& text)
{
    return text;
}

inline std::string_view TextOf(const VEXUnicodeString& text)
{
    return text.View();
}

/// Prints the texts one after the other, without an end of line of its own. Null texts are empty.
template <class... Texts>
void Print(const Texts&... texts)
{
    (Write(TextOf(texts)), ...);
}

/// For the messages that are flushed; the others end with "\n".
inline void EndLineAndFlush()
{
    std::cout << std::endl;
}

/// Prints the texts, ends the line and flushes.
template <class... Texts>
void PrintLine(const Texts&... texts)
{
    Print(texts...);
    EndLineAndFlush();
}

/// As PrintLine, with the failure that the message is about for an answer.
inline HRESULT Fail(const char* message)
{
    PrintLine(message);
    return E_FAIL;
}

/// As Fail, for messages that end a line without flushing.
inline HRESULT FailUnflushed(const char* message)
{
    Print(message, "\n");
    return E_FAIL;
}

/// As Fail, on standard error.
inline HRESULT FailOnStandardError(const char* message)
{
    std::cerr.write(message, static_cast<std::streamsize>(std::string_view(message).size()));
    std::cerr << std::endl;
    return E_FAIL;
}

}  // namespace HLXConsole
