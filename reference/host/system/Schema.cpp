// SPDX-License-Identifier: Apache-2.0
// Compares what SQLite keeps of a schema (its table sqlite_schema) with what ours leaves there.
#include "host/system/Schema.h"

#include <array>

namespace vex::system {
namespace {

// One text per table, index, view or trigger; more than `most` are not read.
bool List(Database& database, std::size_t most, std::vector<std::string>& listing,
          std::string& reason)
{
    Statement statement;
    if (!statement.Prepare(database, "SELECT type, name, tbl_name, sql FROM sqlite_schema",
                           reason)) {
        return false;
    }
    int result = statement.Step();
    for (; result == SQLITE_ROW && listing.size() <= most; result = statement.Step()) {
        std::string entry;
        for (int column = 0; column < 4; ++column) {
            std::string_view text;
            entry += statement.Get(column, text) ? text : "(none)";
            entry += '\0';
        }
        listing.push_back(std::move(entry));
    }
    if (result == SQLITE_DONE || result == SQLITE_ROW) return true;
    reason = database.Reason();
    return false;
}

}  // namespace

Schema::Schema(const char* sql) : _sql(sql)
{
    Database database;
    if (database.OpenInMemory(_fault) && database.Execute(sql, _fault)) {
        List(database, SIZE_MAX - 1, _listing, _fault);
    }
}

bool Schema::Create(Database& database, std::string& reason) const
{
    return database.Execute(_sql, reason);
}

bool Schema::Matches(Database& database, std::string& reason) const
{
    if (!_fault.empty()) {
        reason = _fault;
        return false;
    }
    // One page can name one long text thousands of times.
    constexpr int longestText = 10'000;
    const int longestValue = sqlite3_limit(database.Connection(), SQLITE_LIMIT_LENGTH, longestText);
    std::vector<std::string> found;
    const bool listed = List(database, _listing.size(), found, reason);
    sqlite3_limit(database.Connection(), SQLITE_LIMIT_LENGTH, longestValue);
    if (!listed) return false;
    if (found == _listing) return true;
    reason = "its tables are not those of its data version";
    return false;
}

}  // namespace vex::system
