// SPDX-License-Identifier: Apache-2.0
// SQLite connections as the stores need them.
#include "host/system/Database.h"

#include "host/system/DescriptorVfs.h"
#include "host/system/MessageTexts.h"

#include <fmt/format.h>

#include <initializer_list>
#include <utility>

namespace vex::system {
namespace {

// A stored file needs a handful of plain tables and statements; whatever needs more is not ours.
constexpr std::initializer_list<std::pair<int, int>> kReadingLimits = {
    {SQLITE_LIMIT_SQL_LENGTH, 100000}, {SQLITE_LIMIT_COLUMN, 32},
    {SQLITE_LIMIT_EXPR_DEPTH, 10},     {SQLITE_LIMIT_COMPOUND_SELECT, 2},
    {SQLITE_LIMIT_ATTACHED, 0},        {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 50},
    {SQLITE_LIMIT_VARIABLE_NUMBER, 8}, {SQLITE_LIMIT_TRIGGER_DEPTH, 1},
    {SQLITE_LIMIT_WORKER_THREADS, 0}};

constexpr std::initializer_list<std::pair<int, int>> kReadingSwitches = {
    {SQLITE_DBCONFIG_DEFENSIVE, 1},
    {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
    {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
    {SQLITE_DBCONFIG_ENABLE_VIEW, 0}};

}  // namespace

bool Database::Open(const std::string& name, int flags, const char* vfs, std::string& reason)
{
    sqlite3* connection = nullptr;
    const int result = sqlite3_open_v2(name.c_str(), &connection, flags | SQLITE_OPEN_NOMUTEX, vfs);
    _connection.reset(connection);
    if (result == SQLITE_OK) return true;
    reason = connection != nullptr ? Reason() : sqlite3_errstr(result);
    _connection.reset();
    return false;
}

bool Database::OpenForReading(int file, std::string& reason)
{
    const char* vfs = DescriptorVfs();
    if (vfs == nullptr) {
        reason = "SQLite cannot be initialised";
        return false;
    }
    if (!Open(DescriptorName(file), SQLITE_OPEN_READONLY, vfs, reason)) return false;
    for (const auto& [limit, value] : kReadingLimits)
        sqlite3_limit(Connection(), limit, value);
    for (const auto& [name, value] : kReadingSwitches) {
        if (sqlite3_db_config(Connection(), name, value, nullptr) != SQLITE_OK) {
            reason = Reason();
            return false;
        }
    }
    // Nothing that reads the schema: Schema::Matches limits its texts before.
    return Execute("PRAGMA cell_size_check = ON", reason);
}

bool Database::OpenForWriting(int file, std::string& reason)
{
    const char* vfs = DescriptorVfs();
    if (vfs == nullptr) {
        reason = "SQLite cannot be initialised";
        return false;
    }
    return Open(DescriptorName(file), SQLITE_OPEN_READWRITE, vfs, reason) &&
           Execute("PRAGMA journal_mode = MEMORY; BEGIN EXCLUSIVE", reason);
}

bool Database::OpenInMemory(std::string& reason)
{
    return Open(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_MEMORY, nullptr, reason);
}

bool Database::CopyTo(std::vector<std::byte>& file) const
{
    sqlite3_int64 size = 0;
    unsigned char* bytes = sqlite3_serialize(Connection(), "main", &size, 0);
    if (bytes == nullptr) return false;
    const auto* start = reinterpret_cast<const std::byte*>(bytes);
    file.assign(start, start + size);
    sqlite3_free(bytes);
    return true;
}

bool Database::Execute(const char* sql, std::string& reason)
{
    if (sqlite3_exec(Connection(), sql, nullptr, nullptr, nullptr) == SQLITE_OK) return true;
    reason = Reason();
    return false;
}

bool Database::Commit(std::string& reason)
{
    const bool committed = Execute("COMMIT", reason);
    Close();
    return committed;
}

std::string Database::Reason() const
{
    std::string reason = Printable(sqlite3_errmsg(Connection()));
    const int result = sqlite3_errcode(Connection()) & 0xFF;
    const int code = DescriptorError();
    if (result == SQLITE_IOERR && code != 0) reason += fmt::format(" ({})", SystemReason(code));
    return reason;
}

bool Statement::Prepare(Database& database, const char* sql, std::string& reason)
{
    sqlite3_stmt* statement = nullptr;
    const int result = sqlite3_prepare_v3(database.Connection(), sql, -1, SQLITE_PREPARE_PERSISTENT,
                                          &statement, nullptr);
    _statement.reset(statement);
    if (result == SQLITE_OK) return true;
    reason = database.Reason();
    return false;
}

// The value as a whole costs one call into the statement; what is asked of it then costs none.
bool Statement::Get(int column, std::int64_t& number)
{
    sqlite3_value* value = sqlite3_column_value(_statement.get(), column);
    if (sqlite3_value_type(value) != SQLITE_INTEGER) return false;
    number = sqlite3_value_int64(value);
    return true;
}

bool Statement::Get(int column, std::string_view& text)
{
    sqlite3_value* value = sqlite3_column_value(_statement.get(), column);
    if (sqlite3_value_type(value) != SQLITE_TEXT) return false;
    const unsigned char* characters = sqlite3_value_text(value);
    if (characters == nullptr) return false;  // no memory
    const int size = sqlite3_value_bytes(value);
    text = {reinterpret_cast<const char*>(characters), static_cast<std::size_t>(size)};
    return true;
}

bool Statement::Get(int column, std::span<const std::byte>& bytes)
{
    sqlite3_value* value = sqlite3_column_value(_statement.get(), column);
    if (sqlite3_value_type(value) != SQLITE_BLOB) return false;
    const void* start = sqlite3_value_blob(value);
    const int size = sqlite3_value_bytes(value);
    if (start == nullptr && size != 0) return false;  // no memory
    bytes = {static_cast<const std::byte*>(start), static_cast<std::size_t>(size)};
    return true;
}

}  // namespace vex::system
