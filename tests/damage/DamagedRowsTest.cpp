// SPDX-License-Identifier: Apache-2.0
// Rows that cannot be, under a digest that is right: each is refused by the check that is for it.
// The document: feature 1 is the container, 2 below it the manager, 3 below that the model, and
// the last one the container of B-rep accesses.
#include "DamagedRows.h"

namespace {

using namespace damagetest;

TEST_F(DamagedRows, TheDocumentRow)
{
    const std::string digest = "its content does not match its digest";
    ExpectRefusedUnsealed(
        {{"DELETE FROM document", "table document is empty"},
         {"INSERT INTO document SELECT * FROM document", "table document has more than one row"},
         {"UPDATE document SET kind = 'VEXNothing'", "table document: unknown kind 'VEXNothing'"},
         {"UPDATE document SET kind = 'x' || char(10) || 'vex: y'",
          "table document: unknown kind 'x\\nvex: y'"},
         {"UPDATE document SET kind = 'VEXPart'", digest},
         {"UPDATE document SET digest = x'00'", "table document: a value is of a wrong type"},
         {"UPDATE document SET digest = zeroblob(16)", digest},
         {"UPDATE feature SET alias = 'other' WHERE position = 1", digest},
         {"UPDATE feature SET alias = NULL WHERE alias = 'One HLXPressure'", digest},
         {"UPDATE link SET path = 'x' WHERE id = 1", digest},
         {"UPDATE geometry SET size = 1 WHERE id = 1", digest}});
}

TEST_F(DamagedRows, CountsThatLie)
{
    for (const std::string table : {"feature", "link", "geometry", "late_type", "attribute_name"}) {
        const std::string count = table + "_count";
        for (const std::string lie : {"0", "-1", "9223372036854775807", "1 + "}) {
            const std::string sql =
                "UPDATE document SET " + count + " = " + (lie.size() == 4 ? lie + count : lie);
            const ChildEnd end = OpenUnsealed(sql);
            EXPECT_EQ(end.code, kRefused) << sql;
            EXPECT_THAT(ReasonOf(end, _document->Path()),
                        testing::StartsWith("the file is damaged: its tables do not have the rows "
                                            "it states ("))
                << sql;
        }
    }
}

TEST_F(DamagedRows, PlacesInTheTree)
{
    ExpectRefused(
        {{"UPDATE feature SET id = 1 WHERE parent = 0 AND id > 1",
          "feature 1: its id stands twice"},
         {"UPDATE feature SET id = 0 WHERE parent = 0 AND id > 1",
          "table feature, row 1631: feature 0: its id is not positive"},
         {"UPDATE feature SET id = -5 WHERE position = 3",
          "table feature, row 3: feature -5: its id is not positive"},
         {"UPDATE feature SET parent = 99999 WHERE position = 3",
          "table feature, row 3: feature 3: its parent 99999 does not exist or comes later"},
         {"UPDATE feature SET parent = -1 WHERE position = 3",
          "table feature, row 3: feature 3: its parent -1 does not exist or comes later"},
         {"UPDATE feature SET parent = 9223372036854775807 WHERE position = 3",
          "table feature, row 3: feature 3: its parent 9223372036854775807 does not exist or "
          "comes later"},
         {"UPDATE feature SET parent = 3 WHERE position = 2",
          "table feature, row 2: feature 2: its parent 3 does not exist or comes later"},
         {"UPDATE feature SET parent = 2 WHERE position = 1",
          "table feature, row 1: feature 1: its parent 2 does not exist or comes later"},
         {"UPDATE feature SET parent = 3 WHERE position = 3",
          "table feature, row 3: feature 3: it is its own parent"},
         {"UPDATE feature SET parent = 3 WHERE alias = 'One HLXPressure'",
          "table feature, row 88: feature 89: its parent 3 stands before it, but not depth "
          "first"},
         {"UPDATE feature SET ordinal = 0 WHERE position = 2",
          "table feature, row 2: its ordinal is 0 instead of 1"},
         {"UPDATE feature SET ordinal = -1 WHERE position = 2",
          "table feature, row 2: its ordinal is -1 instead of 1"},
         {"UPDATE feature SET ordinal = 9223372036854775807 WHERE position = 2",
          "table feature, row 2: its ordinal is 9223372036854775807 instead of 1"},
         {"UPDATE feature SET position = 99999 WHERE position = 5",
          "table feature, row 5: its position is wrong"},
         {"UPDATE feature SET position = -3 WHERE position = 1",
          "table feature, row 1: its position is wrong"},
         {"UPDATE feature SET position = 9223372036854775807 WHERE position = 3",
          "table feature, row 3: its position is wrong"},
         {"DELETE FROM feature WHERE position = 3", "table feature, row 3: its position is wrong"},
         {"DELETE FROM feature WHERE position = 1", "table feature, row 1: its position is wrong"},
         {"UPDATE feature SET container = -1 WHERE position = 1",
          "table feature, row 1: feature 1: its container's number is negative"},
         {"UPDATE feature SET container = 4294967296 WHERE position = 1",
          "table feature, row 1: its container's number is too large"},
         {"UPDATE feature SET late_type = -1 WHERE position = 1",
          "table feature, row 1: its late type does not exist"},
         {"UPDATE feature SET late_type = 65535 WHERE position = 1",
          "table feature, row 1: feature 1: its late type does not exist"},
         {"UPDATE feature SET late_type = 65536 WHERE position = 1",
          "table feature, row 1: its late type does not exist"}});
}

TEST_F(DamagedRows, TextsThatAreNone)
{
    ExpectRefused(
        {{"UPDATE document SET kind = CAST(x'564558FF' AS TEXT)",
          "table document: unknown kind 'VEX\\xff'"},
         {"UPDATE document SET kind = CAST(x'5645585061727400' AS TEXT)",
          "table document: unknown kind 'VEXPart\\u{0}'"},
         {"UPDATE late_type SET name = '' WHERE id = 1", "table late_type, name 1: it is empty"},
         {"UPDATE late_type SET name = CAST(x'C328' AS TEXT) WHERE id = 1",
          "table late_type, name 1: it holds bytes that are not valid UTF-8"},
         {"UPDATE late_type SET name = CAST(x'410042' AS TEXT) WHERE id = 1",
          "table late_type, name 1: it holds a NUL character"},
         {"UPDATE late_type SET id = 9999 WHERE id = 1", "name 1 of a table of names is missing"},
         {"UPDATE late_type SET id = -1 WHERE id = 1", "name 0 of a table of names is missing"},
         {"UPDATE attribute_name SET name = '' WHERE id = 0",
          "table attribute_name, name 0: it is empty"},
         {"UPDATE attribute_name SET name = CAST(x'FF' AS TEXT) WHERE id = 0",
          "table attribute_name, name 0: it holds bytes that are not valid UTF-8"},
         {"UPDATE attribute_name SET name = CAST(x'0041' AS TEXT) WHERE id = 0",
          "table attribute_name, name 0: it holds a NUL character"},
         {"UPDATE link SET kind = 'x' WHERE id = 1", "link 1: unknown kind 'x'"},
         {"UPDATE link SET kind = CAST(x'FF' AS TEXT) WHERE id = 1",
          "link 1: unknown kind '\\xff'"},
         {"UPDATE link SET kind = CAST(x'5645585061727400' AS TEXT) WHERE id = 1",
          "link 1: unknown kind 'VEXPart\\u{0}'"},
         {"UPDATE link SET path = '/etc/x' WHERE id = 1", "link 1: its path is not a relative one"},
         {"UPDATE link SET path = '' WHERE id = 1", "link 1: its path is not a relative one"},
         {"UPDATE link SET path = CAST(x'EDA080' AS TEXT) WHERE id = 1",
          "link 1: its path holds bytes that are not valid UTF-8"},
         {"UPDATE link SET path = CAST(x'6100' AS TEXT) WHERE id = 1",
          "link 1: its path holds a NUL character"},
         {"UPDATE link SET id = -3 WHERE id = 1", "link -3: its id is not above the one before it"},
         {"UPDATE link SET id = 0 WHERE id = 1", "link 0: its id is not above the one before it"},
         {"UPDATE feature SET alias = CAST(x'C328' AS TEXT) WHERE position = 1",
          "table feature, row 1: feature 1: its alias holds bytes that are not valid UTF-8"},
         {"UPDATE feature SET alias = CAST(x'410042' AS TEXT) WHERE position = 1",
          "table feature, row 1: feature 1: its alias holds a NUL character"},
         {"UPDATE feature SET alias = x'41' WHERE position = 1",
          "table feature, row 1: a value is of a wrong type"}});
}

TEST_F(DamagedRows, WhatTheCatalogueDoesNotHave)
{
    const auto refused = [](const char* sql, const std::string& reason) {
        const ChildEnd end = _document->OpenResealed(sql);
        EXPECT_EQ(end.code, kRefused) << sql << ' ' << testing::PrintToString(end);
        EXPECT_EQ(ReasonOf(end, _document->Path()), reason) << sql;
    };
    refused("UPDATE late_type SET name = 'HLXNoSuchLT' WHERE name = 'HLXPressure'",
            "feature 89 'One HLXPressure': no catalogue defines its late type 'HLXNoSuchLT'. "
            "Install the library that does.");
    refused("UPDATE attribute_name SET name = 'NoSuch' WHERE name = 'PartNumber'",
            "feature 123 'One VEXProductNode': the late type 'VEXProductNode' has no attribute "
            "'NoSuch'. Use the catalogue that the document was made with.");
    refused(
        "UPDATE attribute_name SET name = CASE name WHEN 'TimePeriod' THEN 'NonlinearGeometry' "
        "ELSE 'TimePeriod' END WHERE name IN ('TimePeriod', 'NonlinearGeometry')",
        "feature 51 'One HLXExplicitDynamicLT': the value of attribute 'NonlinearGeometry' is not "
        "of the kind that the late type 'HLXExplicitDynamicLT' has. Use the catalogue that the "
        "document was made with.");
    refused("UPDATE feature SET container = 7 WHERE position = 3",
            "feature 3 'Finite Element Model.1': it is not in the container it says. Take the "
            "document from a backup.");
    refused("UPDATE feature SET id = 9223372036854775807 WHERE parent = 0 AND id > 1",
            "feature 9223372036854775807: its id or its name cannot be. Take the document from a "
            "backup.");
    // Without the right digest the damage is the reason, whatever else is odd about it.
    ExpectRefusedUnsealed({{"UPDATE late_type SET name = 'HLXNoSuchLT' WHERE name = 'HLXPressure'",
                            "its content does not match its digest"}});
}

}  // namespace
