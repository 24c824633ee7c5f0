// SPDX-License-Identifier: Apache-2.0
// One SQLite connection on an open file, and its statements, for the stores of this system.
#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vex::system {

/// A connection. It neither owns nor closes the file it works on, which must outlive it.
class Database
{
public:
    /// Connects for reading, prepared for a file that may be damaged or hostile: nothing stored in
    /// it is executed, and SQLite's limits are low. False with the reason.
    bool OpenForReading(int file, std::string& reason);

    /// Connects for writing a new file (from Schema::Create) in one transaction, which is begun
    /// here and ended by Commit. Nothing can be rolled back: after a failure the file is of no use.
    /// The caller synchronises it.
    bool OpenForWriting(int file, std::string& reason);

    /// Connects to a new database in memory. False with the reason.
    bool OpenInMemory(std::string& reason);

    /// Gives the bytes of the file that a database in memory would be. False without memory.
    bool CopyTo(std::vector<std::byte>& file) const;

    /// Executes statements without results. False with the reason.
    bool Execute(const char* sql, std::string& reason);

    /// Ends the transaction and the connection. False with the reason.
    bool Commit(std::string& reason);

    bool IsOpen() const { return _connection != nullptr; }
    sqlite3* Connection() const { return _connection.get(); }
    void Close() { _connection.reset(); }

    /// Why the connection's last operation failed, fit for a message.
    std::string Reason() const;

private:
    struct Closer
    {
        void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
    };
    bool Open(const std::string& name, int flags, const char* vfs, std::string& reason);

    std::unique_ptr<sqlite3, Closer> _connection;
};

/// A prepared statement. Texts and bytes bound must live until Execute or the last Step; what a
/// column hands out lives until the next Step.
class Statement
{
public:
    /// False with the reason.
    bool Prepare(Database& database, const char* sql, std::string& reason);

    /// The same when it is not prepared yet: for statements that few files need.
    bool PrepareOnce(Database& database, const char* sql, std::string& reason)
    {
        return _statement != nullptr || Prepare(database, sql, reason);
    }

    void Bind(int place, std::int64_t number)
    {
        sqlite3_bind_int64(_statement.get(), place, number);
    }
    void Bind(int place, std::string_view text)
    {
        sqlite3_bind_text64(_statement.get(), place, text.data() != nullptr ? text.data() : "",
                            text.size(), SQLITE_STATIC, SQLITE_UTF8);
    }
    void Bind(int place, std::span<const std::byte> bytes)
    {
        if (bytes.empty()) {  // a null pointer would bind NULL
            sqlite3_bind_zeroblob(_statement.get(), place, 0);
        } else {
            sqlite3_bind_blob64(_statement.get(), place, bytes.data(), bytes.size(), SQLITE_STATIC);
        }
    }
    void BindNull(int place) { sqlite3_bind_null(_statement.get(), place); }

    /// Runs a statement without results, ready to be bound anew. False when it failed.
    bool Execute()
    {
        sqlite3_step(_statement.get());
        return sqlite3_reset(_statement.get()) == SQLITE_OK;
    }

    /// Goes to the next row: SQLITE_ROW, SQLITE_DONE or an error.
    int Step() { return sqlite3_step(_statement.get()); }

    /// The value of a column. False when it is of another type (or cannot be read).
    bool Get(int column, std::int64_t& number);
    bool Get(int column, std::string_view& text);
    bool Get(int column, std::span<const std::byte>& bytes);
    bool IsNull(int column) { return sqlite3_column_type(_statement.get(), column) == SQLITE_NULL; }

    void Close() { _statement.reset(); }

private:
    struct Closer
    {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    std::unique_ptr<sqlite3_stmt, Closer> _statement;
};

}  // namespace vex::system
