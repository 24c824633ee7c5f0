// SPDX-License-Identifier: Apache-2.0
// Features in plain SQLite.
#include "PlainDatabase.h"

#include "Comparison.h"

#include <sqlite3.h>

#include <memory>

namespace bench {

namespace {

struct Closer
{
    void operator()(sqlite3* connection) const { sqlite3_close(connection); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Connection = std::unique_ptr<sqlite3, Closer>;
using Statement = std::unique_ptr<sqlite3_stmt, Closer>;

Connection Open(const std::string& path, int flags)
{
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(path.c_str(), &opened, flags, nullptr);
    Connection connection(opened);
    Require(result == SQLITE_OK, "the baseline's file cannot be opened");
    return connection;
}

void Execute(const Connection& connection, const char* sql)
{
    Require(sqlite3_exec(connection.get(), sql, nullptr, nullptr, nullptr) == SQLITE_OK, sql);
}

Statement Prepare(const Connection& connection, const char* sql)
{
    sqlite3_stmt* statement = nullptr;
    Require(sqlite3_prepare_v2(connection.get(), sql, -1, &statement, nullptr) == SQLITE_OK, sql);
    return Statement(statement);
}

void Run(const Statement& insert)
{
    Require(sqlite3_step(insert.get()) == SQLITE_DONE, "a row of the baseline was not written");
    sqlite3_reset(insert.get());
}

void BindText(const Statement& statement, int place, const std::string& text)
{
    sqlite3_bind_text(statement.get(), place, text.data(), static_cast<int>(text.size()),
                      SQLITE_STATIC);
}

std::string Text(const Statement& statement, int column)
{
    const auto* const text =
        reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), column));
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement.get(), column))};
}

void InsertFeature(const Statement& insert, const PlainFeature& feature)
{
    sqlite3_bind_int64(insert.get(), 1, feature.id);
    sqlite3_bind_int64(insert.get(), 2, feature.parent);
    sqlite3_bind_int64(insert.get(), 3, feature.ordinal);
    BindText(insert, 4, feature.lateType);
    BindText(insert, 5, feature.alias);
    Run(insert);
}

void InsertAttribute(const Statement& insert, const PlainFeature& feature,
                     const PlainAttribute& attribute)
{
    sqlite3_bind_int64(insert.get(), 1, feature.id);
    BindText(insert, 2, attribute.name);
    if (const auto* const integer = std::get_if<std::int64_t>(&attribute.value)) {
        sqlite3_bind_int64(insert.get(), 3, *integer);
    } else if (const auto* const number = std::get_if<double>(&attribute.value)) {
        sqlite3_bind_double(insert.get(), 3, *number);
    } else {
        BindText(insert, 3, std::get<std::string>(attribute.value));
    }
    Run(insert);
}

PlainAttribute AttributeOf(const Statement& select)
{
    PlainAttribute attribute;
    attribute.name = Text(select, 1);
    switch (sqlite3_column_type(select.get(), 2)) {
        case SQLITE_INTEGER:
            attribute.value = std::int64_t{sqlite3_column_int64(select.get(), 2)};
            break;
        case SQLITE_FLOAT:
            attribute.value = sqlite3_column_double(select.get(), 2);
            break;
        default:
            attribute.value = Text(select, 2);
            break;
    }
    return attribute;
}

}  // namespace

void WritePlain(const std::string& path, AttributeTable table,
                const std::vector<PlainFeature>& features)
{
    const Connection connection = Open(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    // SQLite as it comes: what it has committed outlives a loss of power, as a saved document does.
    Execute(connection,
            "BEGIN EXCLUSIVE;"
            "CREATE TABLE feature (id INTEGER PRIMARY KEY, parent INTEGER, ordinal INTEGER,"
            "                      late_type TEXT, alias TEXT)");
    Execute(connection, table == AttributeTable::Rowid
                            ? "CREATE TABLE attribute (feature INTEGER, name TEXT, value)"
                            : "CREATE TABLE attribute (feature INTEGER, name TEXT, value,"
                              "                        PRIMARY KEY (feature, name)) WITHOUT ROWID");
    const Statement insertFeature =
        Prepare(connection, "INSERT INTO feature VALUES (?1, ?2, ?3, ?4, ?5)");
    const Statement insertAttribute =
        Prepare(connection, "INSERT INTO attribute VALUES (?1, ?2, ?3)");
    for (const PlainFeature& feature : features) {
        InsertFeature(insertFeature, feature);
        for (const PlainAttribute& attribute : feature.attributes) {
            InsertAttribute(insertAttribute, feature, attribute);
        }
    }
    Execute(connection, "COMMIT");
}

std::vector<PlainFeature> ReadPlain(const std::string& path, AttributeTable table)
{
    const Connection connection = Open(path, SQLITE_OPEN_READONLY);
    const Statement selectFeatures = Prepare(
        connection, "SELECT id, parent, ordinal, late_type, alias FROM feature ORDER BY id");
    const Statement selectAttributes = Prepare(
        connection, table == AttributeTable::Rowid
                        ? "SELECT feature, name, value FROM attribute ORDER BY rowid"
                        : "SELECT feature, name, value FROM attribute ORDER BY feature, name");
    std::vector<PlainFeature> features;
    int next = sqlite3_step(selectAttributes.get());
    while (sqlite3_step(selectFeatures.get()) == SQLITE_ROW) {
        PlainFeature& feature = features.emplace_back();
        feature.id = sqlite3_column_int64(selectFeatures.get(), 0);
        feature.parent = sqlite3_column_int64(selectFeatures.get(), 1);
        feature.ordinal = sqlite3_column_int64(selectFeatures.get(), 2);
        feature.lateType = Text(selectFeatures, 3);
        feature.alias = Text(selectFeatures, 4);
        for (; next == SQLITE_ROW && sqlite3_column_int64(selectAttributes.get(), 0) == feature.id;
             next = sqlite3_step(selectAttributes.get())) {
            feature.attributes.push_back(AttributeOf(selectAttributes));
        }
    }
    return features;
}

}  // namespace bench
