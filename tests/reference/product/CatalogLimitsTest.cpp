// SPDX-License-Identifier: Apache-2.0
// Catalogues that are short for what they would cost, or that the parser would stumble over, are
// refused like any other mistake.
#include "product/catalog/CatalogFile.h"

#include <gtest/gtest.h>

namespace {

std::string Refusal(const std::string& text)
{
    std::vector<vex::LateTypeDefinition> types;
    std::string error;
    EXPECT_FALSE(hlx::ReadCatalog(text, "c", types, error)) << text.substr(0, 100);
    return error;
}

std::string Repeated(std::string_view text, int count)
{
    std::string repeated;
    for (int i = 0; i < count; ++i) {
        repeated += text;
    }
    return repeated;
}

std::string Type(int number, const std::string& base, const std::string& attributes)
{
    return "[[type]]\nname = \"T" + std::to_string(number) + "\"\n" +
           (base.empty() ? "" : "base = \"" + base + "\"\n") + "attributes = [" + attributes +
           "]\n";
}

TEST(CatalogLimits, KeysOfAMillionDots)
{
    const std::string dots = Repeated("a.", 1'000'000) + "a";
    const char* const reason =
        "catalogue \"c\", line 2: more than 256 dots in a line; break the line";
    EXPECT_EQ(Refusal("\n[" + dots + "]\n"), reason);
    EXPECT_EQ(Refusal("\n" + dots + " = 1\n"), reason);
    EXPECT_EQ(Refusal("\ntype = [{ " + dots + " = 1 }]\n"), reason);
    EXPECT_EQ(Refusal("\n" + Repeated("\",\".", 1000) + "a = 1\n"), reason);
}

TEST(CatalogLimits, NestingOfDotsInNestedValues)
{
    const std::string line = Repeated("a.", 200) + "a = [\n";
    EXPECT_NE(Refusal("type = [" + Repeated("{ " + line, 1000)).find(": no TOML: "),
              std::string::npos);
}

/// Values within values, `levels` deep, each below a key of so many dots that the parser still
/// takes it, and all closed.
std::string ClosedNest(int levels, int dots)
{
    const std::string key = Repeated("a.", dots) + "a = ";
    return "type = [\n" + Repeated("{ " + key + "[\n", levels) + "1\n" + Repeated("] }\n", levels) +
           "]\n";
}

/// What is read must be let go of too, and that goes by recursion from table to table.
TEST(CatalogLimits, ClosedNestsOfDotsAndValues)
{
    for (const int dots : {1, 128, 256}) {
        for (const int levels : {8, 20, 120, 1000}) {
            EXPECT_NE(Refusal(ClosedNest(levels, dots)).find(": no TOML: "), std::string::npos)
                << levels << " levels, " << dots << " dots";
        }
        // As deep as the parser goes: read, let go of, and refused for what it holds.
        EXPECT_EQ(Refusal(ClosedNest(7, dots)),
                  "catalogue \"c\", line 2, type 1: no \"name\"; add it");
    }
}

TEST(CatalogLimits, ALineMayHaveAListOfManyNumbers)
{
    std::vector<vex::LateTypeDefinition> types;
    std::string error;
    const std::string list =
        R"({ name = "A", kind = "list", default = [)" + Repeated("0.5, ", 256) + "] }";
    EXPECT_TRUE(hlx::ReadCatalog(Type(1, "", list), "c", types, error)) << error;
}

TEST(CatalogLimits, ALongLineOfBases)
{
    std::string text = Type(0, "", "");
    for (int i = 1; i < 2000; ++i) {
        text += Type(i, "T" + std::to_string(i - 1), "");
    }
    EXPECT_TRUE(Refusal(text).ends_with(
        "\"T707\": up to here the types hold, with what they inherit, more than 250000 bases, "
        "attributes and numbers; make the catalogue smaller"));
}

TEST(CatalogLimits, DefaultsInheritedByManyTypes)
{
    std::string text =
        Type(0, "",
             "{ name = \"A\", kind = \"list\", default = [" + Repeated("0.0,\n", 20'000) +
                 "] }, { name = \"B\", kind = \"text\", default = \"" + std::string(80'000, 'x') +
                 "\" }");
    for (int i = 1; i < 100; ++i) {
        text += Type(i, "T0", "");
    }
    EXPECT_NE(Refusal(text).find("\"T8\": up to here the types hold"), std::string::npos);
}

/// What the parser asserts, or holds for unreachable.
TEST(CatalogLimits, MistakesThatTheParserDoesNotExpect)
{
    for (const std::string text : {"a = [ }", "a = { b = ]", "type = [ { a = [ }, } ]", "ü = 1",
                                   "a\u00a0= ü", "a = 1 ü", "[ü]"}) {
        EXPECT_NE(Refusal(text).find("line 1: no TOML: "), std::string::npos) << text;
    }
}

}  // namespace
