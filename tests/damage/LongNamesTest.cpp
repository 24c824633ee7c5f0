// SPDX-License-Identifier: Apache-2.0
// Names of a megabyte in a file that is refused: a message shows where they begin.
#include "DamagedDocument.h"

#include <gmock/gmock.h>

namespace {

using namespace damagetest;
using testing::EndsWith;
using testing::StartsWith;

TEST(LongNames, AreShownByTheirBeginning)
{
    const DamagedDocument document;
    const std::string name = "replace(hex(zeroblob(500000)), '00', 'xx')";
    const std::string beginning = "'" + std::string(200, 'x') + "'... (1000000 bytes)";
    const auto reasonOf = [&](const std::string& sql) {
        const ChildEnd end = document.OpenResealed(sql);
        EXPECT_EQ(end.code, kRefused) << testing::PrintToString(end);
        return ReasonOf(end, document.Path());
    };
    EXPECT_EQ(reasonOf("UPDATE document SET kind = " + name),
              "the file is damaged: table document: unknown kind " + beginning +
                  ". Restore it from a copy.");
    EXPECT_EQ(
        reasonOf("UPDATE link SET kind = " + name + " WHERE id = 1"),
        "the file is damaged: link 1: unknown kind " + beginning + ". Restore it from a copy.");
    EXPECT_THAT(reasonOf("UPDATE late_type SET name = " + name + " WHERE id = 0"),
                EndsWith("no catalogue defines its late type " + beginning +
                         ". Install the library that does."));
    EXPECT_THAT(reasonOf("UPDATE attribute_name SET name = " + name + " WHERE id = 0"),
                EndsWith(" has no attribute " + beginning +
                         ". Use the catalogue that the document was made with."));
    EXPECT_THAT(reasonOf("UPDATE feature SET alias = " + name +
                         " WHERE position = 1; UPDATE late_type SET name = 'None' WHERE id = 0"),
                StartsWith("feature 1 " + beginning + ": "));
}

// A character of two bytes at that place is not cut in two.
TEST(LongNames, AreCutBetweenCharacters)
{
    const DamagedDocument document;
    const ChildEnd end = document.OpenResealed(
        "UPDATE document SET kind = 'x' || replace(hex(zeroblob(150)), '00', 'ü')");
    EXPECT_EQ(end.code, kRefused) << testing::PrintToString(end);
    std::string characters = "x";
    for (int i = 0; i < 99; ++i)
        characters += "ü";
    EXPECT_EQ(ReasonOf(end, document.Path()),
              "the file is damaged: table document: unknown kind '" + characters +
                  "'... (301 bytes). Restore it from a copy.");
}

}  // namespace
