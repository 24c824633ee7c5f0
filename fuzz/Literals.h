// SPDX-License-Identifier: Apache-2.0
// Values of any bytes in the text of an SQL statement, and columns that take them.
#pragma once

#include "support/SqlLiterals.h"

namespace hlxfuzz {

using hlxtest::BlobLiteral;
using hlxtest::TextLiteral;

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
