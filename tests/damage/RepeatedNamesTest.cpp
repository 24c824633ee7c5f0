// SPDX-License-Identifier: Apache-2.0
// A name under two numbers, with a digest that is right: one attribute of a feature could have two
// values then, and a small file could name one type tens of thousands of times.
#include "DamagedDocument.h"

#include <gmock/gmock.h>

namespace {

using namespace damagetest;

class RepeatedNames : public testing::Test
{
protected:
    void ExpectRefused(const std::string& sql, const std::string& reason)
    {
        const ChildEnd end = document.OpenResealed(sql);
        EXPECT_EQ(end.code, kRefused) << sql << ' ' << testing::PrintToString(end);
        EXPECT_EQ(ReasonOf(end, document.Path()),
                  "the file is damaged: " + reason + ". Restore it from a copy.");
    }

    DamagedDocument document;
};

TEST_F(RepeatedNames, OfLateTypes)
{
    ExpectRefused(
        "UPDATE late_type SET name = (SELECT name FROM late_type WHERE id = 0) WHERE id = 3",
        "table late_type, name 3: it stands twice");
}

TEST_F(RepeatedNames, OfAttributes)
{
    ExpectRefused(
        "DELETE FROM attribute_name WHERE id > 4; "
        "INSERT INTO attribute_name SELECT 5, name FROM attribute_name WHERE id = 1",
        "table attribute_name, name 5: it stands twice");
}

TEST_F(RepeatedNames, TensOfThousandsOfThemWithAFeatureForEach)
{
    const auto rows = [](const std::string& row) {
        return " WITH RECURSIVE n(i) AS (VALUES(2) UNION ALL SELECT i + 1 FROM n WHERE i < 65534) "
               "SELECT " +
               row + " FROM n; ";
    };
    const auto names = [&](const std::string& table, const std::string& name) {
        return "DELETE FROM " + table + "; INSERT INTO " + table + " VALUES (0, 'a'), (1, '" +
               name + "'); INSERT INTO " + table + rows("i, '" + name + "'");
    };
    ExpectRefused(
        "DELETE FROM link; DELETE FROM feature; INSERT INTO feature VALUES (1, 1, 0, 1, "
        "0, 1, NULL, x'0000'); INSERT INTO feature" +
            rows("i, i, 1, i - 1, 0, i, NULL, x'0000'") + names("late_type", "HLXPressure") +
            names("attribute_name", "Pressure"),
        "table late_type, name 2: it stands twice");
}

}  // namespace
