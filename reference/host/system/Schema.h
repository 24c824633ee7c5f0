// SPDX-License-Identifier: Apache-2.0
// The tables of a kind of stored file: made when it is written, compared when it is read.
#pragma once

#include "host/system/Database.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vex::system {

/// A schema, known by the SQL text that creates it. Comments within a CREATE statement become part
/// of the file, and so of the comparison. The text is executed once, when the schema is made.
class Schema
{
public:
    /// The files that have it state `applicationId`.
    Schema(const char* sql, int applicationId);

    /// Makes the empty file `file` a database of this schema, without rows, that states the data
    /// version `version`; written through CurrentFileOperations(). False with the reason.
    bool Create(int file, int version, std::string& reason) const;

    /// Whether the database has exactly these tables and nothing else. False with the reason.
    bool Matches(Database& database, std::string& reason) const;

private:
    bool Make(const char* sql, int applicationId);
    bool IsListed(Database& database, std::string& reason) const;

    std::vector<std::byte> _emptyFile;  // as SQLite writes it, data version 0
    std::vector<std::string> _listing;  // what SQLite keeps of each table, in order
    std::string _fault;                 // why the text itself is unusable; empty when it is not
};

}  // namespace vex::system
