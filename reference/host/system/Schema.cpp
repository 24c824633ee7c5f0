// SPDX-License-Identifier: Apache-2.0
// Compares what SQLite keeps of a schema (its table sqlite_schema) with what ours leaves there, and
// begins new files with the pages that it makes of ours in memory.
#include "host/system/Schema.h"

#include "host/system/FileOperations.h"
#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <array>
#include <cstdint>

namespace vex::system {
namespace {

constexpr const char* kSelect = "SELECT type, name, tbl_name, sql FROM sqlite_schema";
constexpr int kColumns = 4;

std::string_view TextOf(Statement& statement, int column)
{
    std::string_view text;
    return statement.Get(column, text) ? text : "(none)";
}

constexpr std::int64_t kUserVersion = 60;  // where it stands in SQLite's header

std::array<unsigned char, 4> BigEndian(int number)
{
    const auto bits = static_cast<std::uint32_t>(number);
    const auto byte = [bits](unsigned shift) { return static_cast<unsigned char>(bits >> shift); };
    return {byte(24), byte(16), byte(8), byte(0)};
}

}  // namespace

Schema::Schema(const char* sql, int applicationId)
{
    if (!Make(sql, applicationId) && _fault.empty()) _fault = "no memory";
}

bool Schema::Make(const char* sql, int applicationId)
{
    Database database;
    Statement statement;
    // With larger pages large documents gain nothing and small ones lose: each table has a page.
    const std::string pragmas = fmt::format(
        "PRAGMA encoding = 'UTF-8'; PRAGMA page_size = 4096; PRAGMA auto_vacuum = NONE;"
        "PRAGMA application_id = {}",
        applicationId);
    if (!database.OpenInMemory(_fault) || !database.Execute(pragmas.c_str(), _fault) ||
        !database.Execute(sql, _fault) || !statement.Prepare(database, kSelect, _fault)) {
        return false;
    }
    while (statement.Step() == SQLITE_ROW) {
        for (int column = 0; column < kColumns; ++column)
            _listing.emplace_back(TextOf(statement, column));
    }
    statement.Close();
    return database.CopyTo(_emptyFile);
}

bool Schema::Create(int file, int version, std::string& reason) const
{
    if (!_fault.empty()) {
        reason = _fault;
        return false;
    }
    const auto& write = CurrentFileOperations().write;
    const auto versionBytes = BigEndian(version);
    int code = write(file, _emptyFile.data(), _emptyFile.size(), 0);
    if (code == 0) code = write(file, versionBytes.data(), versionBytes.size(), kUserVersion);
    if (code < 0) reason = SystemReason(-code);
    return code >= 0;
}

bool Schema::Matches(Database& database, std::string& reason) const
{
    reason = _fault;
    if (!reason.empty()) return false;
    // One page can name one long text thousands of times.
    constexpr int longestText = 10'000;
    const int longestValue = sqlite3_limit(database.Connection(), SQLITE_LIMIT_LENGTH, longestText);
    const bool same = IsListed(database, reason);
    sqlite3_limit(database.Connection(), SQLITE_LIMIT_LENGTH, longestValue);
    if (!same && reason.empty()) reason = "its tables are not those of its data version";
    return same;
}

// Without a reason when another table is listed.
bool Schema::IsListed(Database& database, std::string& reason) const
{
    Statement statement;
    if (!statement.Prepare(database, kSelect, reason)) return false;
    auto expected = _listing.begin();
    int result = statement.Step();
    for (; result == SQLITE_ROW; result = statement.Step()) {
        if (expected == _listing.end()) return false;
        for (int column = 0; column < kColumns; ++column) {
            if (TextOf(statement, column) != *expected++) return false;
        }
    }
    if (result != SQLITE_DONE) reason = database.Reason();
    return result == SQLITE_DONE && expected == _listing.end();
}

}  // namespace vex::system
