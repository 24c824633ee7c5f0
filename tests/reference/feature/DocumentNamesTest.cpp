// SPDX-License-Identifier: Apache-2.0
// File names made of names of parts.
#include "host/product/DocumentNames.h"

#include "host/system/Texts.h"

#include <gtest/gtest.h>

namespace {

using vex::DocumentNames;

TEST(DocumentNames, StayInTheFolder)
{
    const std::pair<std::string, const char*> table[] = {
        {"Bracket", "Bracket.VEXPart"},
        {"", "VEXPart.VEXPart"},
        {"..", "_..VEXPart"},
        {".hidden", "_hidden.VEXPart"},
        {"../../etc/passwd", "_._.._etc_passwd.VEXPart"},
        {"a/b\\c", "a_b_c.VEXPart"},
        {std::string("a\0b", 3), "a_b.VEXPart"},
        {"line\nbreak\x7F", "line_break_.VEXPart"},
        {"Größe", "Größe.VEXPart"},
        {"\xFF\xFEx", "__x.VEXPart"},
    };
    for (const auto& [name, file] : table) {
        EXPECT_EQ(DocumentNames().Give(name, "VEXPart"), file) << name;
    }
}

TEST(DocumentNames, DifferFromEachOther)
{
    DocumentNames names;
    EXPECT_EQ(names.Give("Bolt", "VEXPart"), "Bolt.VEXPart");
    EXPECT_EQ(names.Give("Bolt", "VEXPart"), "Bolt_2.VEXPart");
    EXPECT_EQ(names.Give("BOLT_2", "VEXPart"), "BOLT_2_2.VEXPart");
    EXPECT_EQ(names.Give("bolt", "VEXPart"), "bolt_3.VEXPart");
    EXPECT_EQ(names.Give("a/b", "VEXPart"), "a_b.VEXPart");
    EXPECT_EQ(names.Give("a_b", "VEXPart"), "a_b_2.VEXPart");
}

TEST(DocumentNames, AreAtMost200BytesOfWholeCharacters)
{
    DocumentNames names;
    for (const std::string& letter : {std::string("x"), std::string("Ω"), std::string("𝄞")}) {
        std::string name;
        while (name.size() < 1000) {
            name += letter;
        }
        const std::string first = names.Give(name, "VEXProduct");
        const std::string second = names.Give(name, "VEXProduct");
        EXPECT_LE(first.size(), 200U);
        EXPECT_LE(second.size(), 200U);
        EXPECT_NE(first, second);
        EXPECT_TRUE(vex::text::IsValid(first) && vex::text::IsValid(second));
    }
}

}  // namespace
