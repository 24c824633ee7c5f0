// SPDX-License-Identifier: Apache-2.0
// The tables of a kind of stored file: made when it is written, compared when it is read.
#pragma once

#include "host/system/Database.h"

#include <string>
#include <vector>

namespace vex::system {

/// A schema, known by the SQL text that creates it. Comments within a CREATE statement become part
/// of the file, and so of the comparison.
class Schema
{
public:
    /// `sql` must live as long as this object.
    explicit Schema(const char* sql);

    /// Creates the tables in an empty database. False with the reason.
    bool Create(Database& database, std::string& reason) const;

    /// Whether the database has exactly these tables and nothing else. False with the reason.
    bool Matches(Database& database, std::string& reason) const;

private:
    const char* _sql;
    std::vector<std::string> _listing;  // what SQLite keeps of each table, in order
    std::string _fault;                 // why the text itself is unusable; empty when it is not
};

}  // namespace vex::system
