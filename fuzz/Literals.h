// SPDX-License-Identifier: Apache-2.0
// Values of any bytes in the text of an SQL statement.
#pragma once

#include <fmt/format.h>

#include <string>
#include <string_view>

namespace hlxfuzz {

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

/// In the schema's text, the types and constraints of columns become comments, and are made of
/// these again: between the two, columns take values of any type, as those of a file may have.
inline constexpr const char* kRelaxColumns =
    "PRAGMA writable_schema = ON;"
    "UPDATE sqlite_schema SET sql = replace(replace(replace(replace(sql,"
    " ' INTEGER NOT NULL', ' /*INTEGER NOT NULL*/'), ' TEXT NOT NULL', ' /*TEXT NOT NULL*/'),"
    " ' BLOB NOT NULL', ' /*BLOB NOT NULL*/'), ' TEXT,', ' /*TEXT*/,');";
inline constexpr const char* kRestoreColumns =
    "PRAGMA writable_schema = ON;"
    "UPDATE sqlite_schema SET sql = replace(replace(sql, '/*', ''), '*/', '');";

}  // namespace hlxfuzz
