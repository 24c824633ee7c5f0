// SPDX-License-Identifier: Apache-2.0
// Makes statements of inputs.
#include "RowEdits.h"

#include "Literals.h"
#include "PackedBytes.h"
#include "support/ResealedDocument.h"

#include <algorithm>

namespace hlxfuzz {

namespace {

/// What is made right again after the edits, so that a tree that was changed stays one.
struct Repairs
{
    explicit Repairs(std::uint8_t switches)
        : order((switches & 4U) == 0),
          positions((switches & 1U) == 0),
          ordinals((switches & 2U) == 0)
    {}
    bool order;      ///< depth first; what no root leads to is dropped
    bool positions;  ///< as the order has them
    bool ordinals;   ///< likewise
};

std::string StatementsOf(const Repairs& repairs)
{
    constexpr const char* kByPosition = "SELECT *, position AS place FROM feature";
    // Ids that stand twice would make rows without end.
    constexpr const char* kDepthFirst =
        "WITH RECURSIVE walk AS ("
        "SELECT *, printf('%020d', position) AS place, 0 AS depth FROM feature WHERE parent = 0 "
        "UNION ALL SELECT feature.*, place || printf('%020d', feature.position), depth + 1 "
        "FROM feature JOIN walk ON feature.parent = walk.id WHERE depth < 40 LIMIT 200) "
        "SELECT * FROM walk";
    return fmt::format(
        "PRAGMA temp_store = MEMORY; CREATE TEMP TABLE old AS {}; DELETE FROM feature;"
        "INSERT OR REPLACE INTO feature SELECT {}, id, parent, {}, container, late_type, alias,"
        "attributes FROM old;",
        repairs.order ? kDepthFirst : kByPosition,
        repairs.positions ? "row_number() OVER (ORDER BY place)" : "position",
        repairs.ordinals ? "row_number() OVER (PARTITION BY parent ORDER BY place)" : "ordinal");
}

std::string ValueOf(InputReader& input)
{
    switch (input.Below(5)) {
        case 0:
            return std::to_string(input.Number());
        case 1:
            return TextLiteral(input.Bytes());
        case 2:
            return BlobLiteral(input.Bytes());
        case 3:
            return fmt::format("({} / 8.0)", input.Number());
        default:
            return "NULL";
    }
}

/// The column's bytes, those from a place on replaced, its type kept.
std::string SplicedColumn(const char* column, InputReader& input)
{
    const std::size_t start = input.Byte();
    const std::size_t removed = input.Below(16);
    const std::string bytes =
        fmt::format("substr(CAST({0} AS BLOB), 1, {1}) || {2} || substr(CAST({0} AS BLOB), {3})",
                    column, start, BlobLiteral(input.Bytes()), start + removed + 1);
    return fmt::format(
        "CASE typeof({0}) WHEN 'text' THEN CAST({1} AS TEXT) ELSE CAST({1} AS BLOB) END", column,
        bytes);
}

std::string Row(const char* table, std::size_t row)
{
    return fmt::format("(SELECT rowid FROM {} ORDER BY rowid LIMIT 1 OFFSET {})", table, row);
}

std::string ColumnsBehindKey(const std::vector<const char*>& columns)
{
    return fmt::format("{}", fmt::join(columns.begin() + 1, columns.end(), ", "));
}

}  // namespace

EditableDocument::EditableDocument(const std::string& file)
    : _tables{{"feature",
               {"position", "id", "parent", "ordinal", "container", "late_type", "alias",
                "attributes"}},
              {"late_type", {"id", "name"}},
              {"attribute_name", {"id", "name"}},
              {"link", {"id", "kind", "path"}},
              {"geometry", {"id", "size", "digest", "bytes"}},
              {"document", {"rowid", "kind", "feature_count", "digest"}}}
{
    const std::string path = InFolder("editable");
    WriteFile(path, file);
    std::string error;
    Require(hlxtest::ChangeBySql(path, kRelaxColumns, error), error);
    _bytes = ReadFile(path);
}

std::string EditableDocument::EditOf(InputReader& input) const
{
    std::size_t operation = input.Below(8);
    const Table& table = _tables[std::min(input.Below(8), _tables.size() - 1)];
    const char* const column = table.columns[input.Below(table.columns.size())];
    if (column == table.columns.front() && operation < 4) {
        operation = 1;  // a key is a number, in any file
    }
    const std::string row = Row(table.name, input.Below(40));
    const auto set = [&](const char* target, const std::string& value) {
        return fmt::format("UPDATE OR REPLACE {} SET {} = {} WHERE rowid = {};", table.name, target,
                           value, row);
    };
    switch (operation) {
        case 0:
            return set(column, ValueOf(input));
        case 1:
            return set(column, std::to_string(input.Number()));
        case 2:
            return set(column, SplicedColumn(column, input));
        case 3:
            return set(column, fmt::format("(SELECT {} FROM {} WHERE rowid = {})", column,
                                           table.name, Row(table.name, input.Below(40))));
        case 4:
            return fmt::format("DELETE FROM {} WHERE rowid = {};", table.name, row);
        case 5: {
            const std::string others = ColumnsBehindKey(table.columns);
            return fmt::format(
                "INSERT OR REPLACE INTO {0} ({1}, {2}) SELECT {3}, {2} FROM {0} "
                "WHERE rowid = {4};",
                table.name, table.columns.front(), others, input.Number(), row);
        }
        default:
            return fmt::format("UPDATE feature SET attributes = {} WHERE rowid = {};",
                               BlobLiteral(PackedAttributesOf(input)),
                               Row("feature", input.Below(40)));
    }
}

std::string EditableDocument::EditsOf(Input bytes) const
{
    InputReader input(bytes);
    const Repairs repairs(input.Byte());
    std::string statements;
    while (!input.AtEnd()) {
        statements += EditOf(input);
    }
    statements += StatementsOf(repairs);
    return statements + kRestoreColumns;
}

}  // namespace hlxfuzz
