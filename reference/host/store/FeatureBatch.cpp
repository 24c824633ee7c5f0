// SPDX-License-Identifier: Apache-2.0
// A virtual table over the waiting rows, with a scan as its only operation.
#include "host/store/FeatureBatch.h"

#include <sqlite3.h>

#include <new>

namespace vex::store {

struct FeatureBatchTable
{
    struct Table
    {
        sqlite3_vtab base;  // must be first: SQLite holds a pointer to it
        const FeatureBatch* batch;
    };
    struct Cursor
    {
        sqlite3_vtab_cursor base;  // must be first
        const FeatureBatch* batch;
        std::size_t row;
    };

    static Cursor& At(sqlite3_vtab_cursor* cursor) { return *reinterpret_cast<Cursor*>(cursor); }

    static int Connect(sqlite3* connection, void* batch, int, const char* const*,
                       sqlite3_vtab** table, char**)
    {
        const int result = sqlite3_declare_vtab(
            connection,
            "CREATE TABLE waiting (id INTEGER, parent INTEGER, ordinal INTEGER, "
            "container INTEGER, late_type INTEGER, alias TEXT, attributes BLOB)");
        if (result != SQLITE_OK) return result;
        auto* made = new (std::nothrow) Table{{}, static_cast<const FeatureBatch*>(batch)};
        if (made == nullptr) return SQLITE_NOMEM;
        *table = &made->base;
        return SQLITE_OK;
    }

    static int Disconnect(sqlite3_vtab* table)
    {
        delete reinterpret_cast<Table*>(table);
        return SQLITE_OK;
    }

    static int BestIndex(sqlite3_vtab*, sqlite3_index_info*) { return SQLITE_OK; }

    static int Open(sqlite3_vtab* table, sqlite3_vtab_cursor** cursor)
    {
        auto* made = new (std::nothrow) Cursor{{}, reinterpret_cast<Table*>(table)->batch, 0};
        if (made == nullptr) return SQLITE_NOMEM;
        *cursor = &made->base;
        return SQLITE_OK;
    }

    static int Close(sqlite3_vtab_cursor* cursor)
    {
        delete &At(cursor);
        return SQLITE_OK;
    }

    static int Filter(sqlite3_vtab_cursor* cursor, int, const char*, int, sqlite3_value**)
    {
        At(cursor).row = 0;
        return SQLITE_OK;
    }

    static int Next(sqlite3_vtab_cursor* cursor)
    {
        ++At(cursor).row;
        return SQLITE_OK;
    }

    static int AtEnd(sqlite3_vtab_cursor* cursor)
    {
        return At(cursor).row >= At(cursor).batch->_waiting.size() ? 1 : 0;
    }

    static int Column(sqlite3_vtab_cursor* cursor, sqlite3_context* context, int column)
    {
        const Cursor& at = At(cursor);
        const FeatureBatch::Waiting& waiting = at.batch->_waiting[at.row];
        const char* bytes = at.batch->_bytes.data();
        switch (column) {
            case 0:
                sqlite3_result_int64(context, waiting.row.id);
                break;
            case 1:
                sqlite3_result_int64(context, waiting.row.parent);
                break;
            case 2:
                sqlite3_result_int64(context, waiting.ordinal);
                break;
            case 3:
                sqlite3_result_int64(context, waiting.row.container);
                break;
            case 4:
                sqlite3_result_int64(context, waiting.row.lateType);
                break;
            case 5:
                if (waiting.row.alias) {
                    sqlite3_result_text64(context, bytes + waiting.aliasStart, waiting.aliasSize,
                                          SQLITE_STATIC, SQLITE_UTF8);
                }
                break;  // without a result the value is NULL
            default:
                sqlite3_result_blob64(context, bytes + waiting.attributesStart,
                                      waiting.attributesSize, SQLITE_STATIC);
        }
        return SQLITE_OK;
    }

    static int RowId(sqlite3_vtab_cursor* cursor, sqlite3_int64* id)
    {
        *id = static_cast<sqlite3_int64>(At(cursor).row);
        return SQLITE_OK;
    }

    static const sqlite3_module* Module()
    {
        static const sqlite3_module module = [] {
            sqlite3_module made{};
            made.xConnect = Connect;  // no xCreate: the table is there without being created
            made.xBestIndex = BestIndex;
            made.xDisconnect = Disconnect;
            made.xOpen = Open;
            made.xClose = Close;
            made.xFilter = Filter;
            made.xNext = Next;
            made.xEof = AtEnd;
            made.xColumn = Column;
            made.xRowid = RowId;
            return made;
        }();
        return &module;
    }
};

namespace {

constexpr std::size_t kMostRows = 128;
constexpr std::size_t kMostBytes = std::size_t{32} * 1024;

}  // namespace

bool FeatureBatch::Attach(system::Database& database, std::string& reason)
{
    Detach();
    _waiting.reserve(kMostRows);
    if (sqlite3_create_module_v2(database.Connection(), "waiting", FeatureBatchTable::Module(),
                                 this, nullptr) != SQLITE_OK) {
        reason = database.Reason();
        return false;
    }
    // The positions are 1, 2, 3, ...: those that SQLite gives, and fastest when it does.
    return _insert.Prepare(database,
                           "INSERT INTO feature (id, parent, ordinal, container, late_type, alias, "
                           "attributes) SELECT * FROM waiting",
                           reason);
}

void FeatureBatch::Detach()
{
    _insert.Close();
    _waiting.clear();
    _bytes.clear();
}

bool FeatureBatch::Add(const FeatureRow& feature, std::int64_t ordinal)
{
    Waiting& waiting = _waiting.emplace_back();
    waiting.row = feature;
    waiting.ordinal = ordinal;
    if (feature.alias) {
        waiting.aliasStart = _bytes.size();
        waiting.aliasSize = feature.alias->size();
        _bytes.insert(_bytes.end(), feature.alias->begin(), feature.alias->end());
    }
    waiting.attributesStart = _bytes.size();
    waiting.attributesSize = feature.attributes.size();
    const char* attributes = reinterpret_cast<const char*>(feature.attributes.data());
    _bytes.insert(_bytes.end(), attributes, attributes + feature.attributes.size());
    return (_waiting.size() < kMostRows && _bytes.size() < kMostBytes) || Flush();
}

bool FeatureBatch::Flush()
{
    if (_waiting.empty()) return true;
    if (!_insert.Execute()) return false;
    _waiting.clear();
    _bytes.clear();
    return true;
}

}  // namespace vex::store
