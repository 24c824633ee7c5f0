// SPDX-License-Identifier: Apache-2.0
// Computes the digest of a document from its rows as the format says, on its own: it must be able
// to seal what the host's writer would refuse.
#include "support/ResealedDocument.h"

#include <sqlite3.h>
#include <xxhash.h>

#include <array>
#include <cstdint>
#include <memory>

namespace hlxtest {

namespace {

struct Close
{
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Connection = std::unique_ptr<sqlite3, Close>;
using Statement = std::unique_ptr<sqlite3_stmt, Close>;

using Digest = XXH128_canonical_t;

Digest Canonical(XXH128_hash_t hash)
{
    Digest digest;
    XXH128_canonicalFromHash(&digest, hash);
    return digest;
}

/// Numbers go in as eight little-endian bytes.
class Sum
{
public:
    Sum() : _state(XXH3_createState()) { XXH3_128bits_reset(_state.get()); }

    void AddNumber(std::int64_t number)
    {
        std::array<unsigned char, 8> bytes;
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            bytes[i] = static_cast<unsigned char>(static_cast<std::uint64_t>(number) >> (8 * i));
        }
        AddBytes(bytes.data(), bytes.size());
    }
    void AddBytes(const void* bytes, std::size_t size)
    {
        if (size > 0) {
            XXH3_128bits_update(_state.get(), bytes, size);
        }
    }
    /// A value's bytes as they are stored, behind their number when it is asked for.
    void AddValue(sqlite3_stmt* row, int column, bool withSize)
    {
        const void* const bytes = sqlite3_column_blob(row, column);
        const int size = sqlite3_column_bytes(row, column);
        if (withSize) {
            AddNumber(size);
        }
        AddBytes(bytes, static_cast<std::size_t>(size));
    }
    Digest Result() const { return Canonical(XXH3_128bits_digest(_state.get())); }

private:
    struct Free
    {
        void operator()(XXH3_state_t* state) const { XXH3_freeState(state); }
    };
    std::unique_ptr<XXH3_state_t, Free> _state;
};

void AddName(Sum& sum, sqlite3_stmt* row)
{
    sum.AddValue(row, 0, true);
}

void AddLink(Sum& sum, sqlite3_stmt* row)
{
    sum.AddNumber(sqlite3_column_int64(row, 0));
    sum.AddValue(row, 1, true);
    sum.AddValue(row, 2, true);
}

void AddGeometry(Sum& sum, sqlite3_stmt* row)
{
    sum.AddNumber(sqlite3_column_int64(row, 0));
    sum.AddNumber(sqlite3_column_int64(row, 1));
    sum.AddValue(row, 2, false);
}

void AddFeature(Sum& sum, sqlite3_stmt* row)
{
    for (int column = 0; column < 5; ++column) {
        sum.AddNumber(sqlite3_column_int64(row, column));
    }
    const bool hasAlias = sqlite3_column_type(row, 5) != SQLITE_NULL;
    sum.AddNumber(hasAlias ? sqlite3_column_bytes(row, 5) : -1);
    sum.AddNumber(sqlite3_column_bytes(row, 6));
    sum.AddValue(row, 5, false);
    sum.AddValue(row, 6, false);
}

struct Table
{
    const char* rows;
    void (*add)(Sum& sum, sqlite3_stmt* row);
    const char* count;
};

/// In the order in which the digest takes them.
constexpr Table kTables[] = {
    {"SELECT name FROM late_type ORDER BY id", AddName, "late_type_count"},
    {"SELECT name FROM attribute_name ORDER BY id", AddName, "attribute_name_count"},
    {"SELECT id, kind, path FROM link ORDER BY id", AddLink, "link_count"},
    {"SELECT id, size, digest FROM geometry ORDER BY id", AddGeometry, "geometry_count"},
    {"SELECT id, parent, ordinal, container, late_type, alias, attributes FROM feature "
     "ORDER BY position",
     AddFeature, "feature_count"}};

void DigestOf(sqlite3_context* context, int /*count*/, sqlite3_value** arguments)
{
    const void* const bytes = sqlite3_value_blob(arguments[0]);
    const int size = sqlite3_value_bytes(arguments[0]);
    const Digest digest = Canonical(XXH3_128bits(bytes, static_cast<std::size_t>(size)));
    sqlite3_result_blob(context, digest.digest, sizeof digest.digest, SQLITE_TRANSIENT);
}

Connection Open(const std::string& path, std::string& error)
{
    sqlite3* opened = nullptr;
    const int result =
        sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    Connection connection(opened);
    if (result != SQLITE_OK ||
        sqlite3_create_function_v2(opened, "digest_of", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                   nullptr, DigestOf, nullptr, nullptr, nullptr) != SQLITE_OK) {
        error = sqlite3_errmsg(opened);
        return nullptr;
    }
    // These files are thrown away: no time is spent on making them durable.
    sqlite3_exec(opened, "PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF", nullptr, nullptr,
                 nullptr);
    return connection;
}

bool Execute(sqlite3* connection, const std::string& sql, std::string& error)
{
    if (sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK) {
        return true;
    }
    error = sqlite3_errmsg(connection);
    return false;
}

Statement Prepare(sqlite3* connection, const char* sql, std::string& error)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection, sql, -1, &statement, nullptr) != SQLITE_OK) {
        error = sqlite3_errmsg(connection);
    }
    return Statement(statement);
}

/// Version and kind, with which the digest of the whole begins.
bool AddHead(sqlite3* connection, Sum& whole, std::string& error)
{
    const Statement head =
        Prepare(connection, "SELECT user_version, kind FROM pragma_user_version, document", error);
    if (head == nullptr) {
        return false;
    }
    if (sqlite3_step(head.get()) == SQLITE_ROW) {
        whole.AddNumber(sqlite3_column_int64(head.get(), 0));
        whole.AddValue(head.get(), 1, true);
    }
    return true;
}

bool AddTable(sqlite3* connection, const Table& table, Sum& whole, std::string& error)
{
    const Statement rows = Prepare(connection, table.rows, error);
    if (rows == nullptr) {
        return false;
    }
    Sum sum;
    std::int64_t count = 0;
    int result = sqlite3_step(rows.get());
    for (; result == SQLITE_ROW; result = sqlite3_step(rows.get())) {
        table.add(sum, rows.get());
        ++count;
    }
    if (result != SQLITE_DONE) {
        error = sqlite3_errmsg(connection);
        return false;
    }
    const Digest digest = sum.Result();
    whole.AddNumber(count);
    whole.AddBytes(digest.digest, sizeof digest.digest);
    return Execute(
        connection,
        std::string("UPDATE document SET ") + table.count + " = " + std::to_string(count), error);
}

bool Seal(sqlite3* connection, std::string& error)
{
    Sum whole;
    if (!AddHead(connection, whole, error)) {
        return false;
    }
    for (const Table& table : kTables) {
        if (!AddTable(connection, table, whole, error)) {
            return false;
        }
    }
    const Statement update = Prepare(connection, "UPDATE document SET digest = ?1", error);
    const Digest digest = whole.Result();
    if (update == nullptr ||
        sqlite3_bind_blob(update.get(), 1, digest.digest, sizeof digest.digest, SQLITE_STATIC) !=
            SQLITE_OK ||
        sqlite3_step(update.get()) != SQLITE_DONE) {
        error = sqlite3_errmsg(connection);
        return false;
    }
    return true;
}

}  // namespace

bool ChangeBySql(const std::string& path, const std::string& sql, std::string& error)
{
    const Connection connection = Open(path, error);
    return connection != nullptr && Execute(connection.get(), sql, error);
}

bool Reseal(const std::string& path, std::string& error)
{
    return ChangeAndReseal(path, "", error);
}

bool ChangeAndReseal(const std::string& path, const std::string& sql, std::string& error)
{
    const Connection connection = Open(path, error);
    return connection != nullptr && Execute(connection.get(), sql, error) &&
           Seal(connection.get(), error);
}

}  // namespace hlxtest
