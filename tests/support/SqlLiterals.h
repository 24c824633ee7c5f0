// SPDX-License-Identifier: Apache-2.0
// Values of any bytes in the text of an SQL statement. Needs no test framework.
#pragma once

#include <fmt/format.h>

#include <string>
#include <string_view>

namespace hlxtest {

inline std::string BlobLiteral(std::string_view bytes)
{
    std::string text = "X'";
    for (const char byte : bytes) {
        text += fmt::format("{:02X}", static_cast<unsigned char>(byte));
    }
    return text + "'";
}

inline std::string TextLiteral(std::string_view bytes)
{
    return "CAST(" + BlobLiteral(bytes) + " AS TEXT)";
}

}  // namespace hlxtest
