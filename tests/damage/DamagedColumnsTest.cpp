// SPDX-License-Identifier: Apache-2.0
// Values of another type in every column, under a digest of what was there before.
#include "DamagedRows.h"

#include <utility>
#include <vector>

namespace {

class DamagedColumns : public damagetest::DamagedRows
{};

// A text may take the place of a text, and in a column of texts SQLite makes one of each number.
TEST_F(DamagedColumns, EveryColumnWithAValueOfAWrongType)
{
    struct Column
    {
        const char* name;
        const char* reasonOfText = nullptr;   // for columns of texts
        const char* reasonOfBytes = nullptr;  // where they are not just of a wrong type
    };
    struct Table
    {
        const char* name;
        std::string place;
        std::vector<Column> columns;
    };
    const char* const digest = "its content does not match its digest";
    const char* const noName = "name 0 of a table of names is missing";
    const Table tables[] = {
        {"document",
         "table document: ",
         {{"kind", "table document: unknown kind '%'"},
          {"late_type_count"},
          {"attribute_name_count"},
          {"link_count"},
          {"geometry_count"},
          {"feature_count"},
          {"digest"}}},
        {"late_type", "", {{"name", "table late_type, name 1: it stands twice", noName}}},
        {"attribute_name", "", {{"name", "table attribute_name, name 1: it stands twice", noName}}},
        {"link", "link 1: ", {{"kind", "link 1: unknown kind '%'"}, {"path", digest}}},
        {"geometry", "geometry 1: ", {{"size"}, {"digest"}}},
        {"feature",
         "table feature, row 1: ",
         {{"id"},
          {"parent"},
          {"ordinal"},
          {"container"},
          {"late_type"},
          {"alias", digest},
          {"attributes", nullptr, "table feature, row 1: feature 1: the attributes end early"}}}};
    const std::pair<const char*, const char*> values[] = {
        {"2.5", "2.5"}, {"x'41'", nullptr}, {"'text'", "text"}, {"9.3e18", "9.3e+18"}};
    int cases = 0;
    for (const Table& table : tables) {
        for (const Column& column : table.columns) {
            for (const auto& [value, text] : values) {
                const char* const other =
                    text == nullptr ? column.reasonOfBytes : column.reasonOfText;
                std::string reason = table.place + "a value is of a wrong type";
                if (other != nullptr) reason = other;
                if (const auto at = reason.find('%'); at != std::string::npos && text != nullptr) {
                    reason.replace(at, 1, text);
                }
                const std::string sql =
                    std::string("UPDATE ") + table.name + " SET " + column.name + " = " + value;
                ExpectDamaged({sql.c_str(), reason}, OpenUnsealed(sql));
                ++cases;
            }
        }
    }
    EXPECT_EQ(cases, 80);
}

}  // namespace
