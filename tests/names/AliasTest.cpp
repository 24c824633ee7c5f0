// SPDX-License-Identifier: Apache-2.0
// Aliases: kept byte for byte or refused, each told from every other in both texts, and none able
// to change anything but itself.
#include "host/feature/FeatureTree.h"
#include "names/DeckGrammar.h"
#include "names/DumpGrammar.h"
#include "names/HostileNames.h"
#include "names/NamedAnalysis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace hlxtest {

namespace {

/// The siblings below the model that bear one name of the table each.
constexpr const char* kBearer = "HLXHollexPropertySetLT";

std::vector<std::string> AliasesOf(const NamedAnalysis& analysis)
{
    std::vector<std::string> aliases;
    for (vex::Feature* const feature : FeaturesOf(analysis.Model())) {
        if (feature->Kind().name == kBearer) aliases.push_back(AliasOf(*feature));
    }
    return aliases;
}

std::vector<std::string> Bytes(const HostileNames& names)
{
    std::vector<std::string> bytes;
    for (const HostileName& name : names) {
        bytes.push_back(name.bytes);
    }
    return bytes;
}

TEST(HostileNameTable, HasNoNameTwice)
{
    std::set<std::string> seen;
    for (const HostileNames* const names : {&StorableNames(), &UnstorableNames()}) {
        for (const HostileName& name : *names) {
            EXPECT_TRUE(seen.insert(name.bytes).second) << name.label;
        }
    }
    EXPECT_GT(seen.size(), 120U);
}

TEST(AliasNames, AreKeptByteForByteWhenMadeSetStoredAndOpened)
{
    NamedAnalysis analysis;
    for (const HostileName& name : StorableNames()) {
        const VEXISpecObject_var made = analysis.Create(kBearer, name.bytes, analysis.Model());
        ASSERT_NE(made, nullptr) << name.label;
    }
    EXPECT_EQ(AliasesOf(analysis), Bytes(StorableNames()));
    // Each name in place of another one.
    std::vector<std::string> moved = Bytes(StorableNames());
    std::rotate(moved.begin(), moved.begin() + 1, moved.end());
    auto next = moved.begin();
    for (vex::Feature* const feature : FeaturesOf(analysis.Model())) {
        if (feature->Kind().name == kBearer) {
            EXPECT_EQ(SetAlias(*feature, *next++), S_OK);
        }
    }
    analysis.Reopen();
    EXPECT_EQ(AliasesOf(analysis), moved);
}

TEST(AliasNames, ThatCannotBeStoredAreRefusedAndChangeNothing)
{
    NamedAnalysis analysis;
    const std::string before = analysis.Dump();
    for (const HostileName& name : UnstorableNames()) {
        EXPECT_EQ(analysis.Create(kBearer, name.bytes, analysis.Model()), nullptr) << name.label;
        for (vex::Feature* const bearer : analysis.Bearers()) {
            EXPECT_EQ(SetAlias(*bearer, name.bytes), E_INVALIDARG) << name.label;
        }
    }
    EXPECT_EQ(analysis.Dump(), before);
    analysis.Reopen();
    EXPECT_EQ(analysis.Dump(), before);
}

TEST(AliasNames, CanAllBeReadBackFromTheDump)
{
    NamedAnalysis analysis;
    for (const HostileName& name : StorableNames()) {
        analysis.Create(kBearer, name.bytes, analysis.Model());
    }
    analysis.Reopen();
    std::vector<std::string> read;
    for (const DumpLine& line : ReadDump(analysis.Dump())) {
        if (line.type == kBearer) read.push_back(line.alias);
    }
    EXPECT_EQ(read, Bytes(StorableNames()));
}

class EveryForm : public testing::TestWithParam<bool>
{};

INSTANTIATE_TEST_SUITE_P(Deck, EveryForm, testing::Bool(),
                         [](const auto& form) { return form.param ? "Flat" : "Structured"; });

TEST_P(EveryForm, AllAliasesCanBeReadBackFromTheDeck)
{
    NamedAnalysis analysis;
    for (const HostileName& name : StorableNames()) {
        analysis.Create(kBearer, name.bytes, analysis.Model());
    }
    analysis.Reopen();
    std::vector<std::string> read;
    for (const DeckLine& line : LinesOf(ReadDeck(analysis.Deck(GetParam())), "PROPERTY SET")) {
        read.push_back(line.Text("NAME"));
    }
    EXPECT_EQ(read, Bytes(StorableNames()));
}

TEST_P(EveryForm, NoAliasChangesAnythingButItself)
{
    NamedAnalysis analysis;
    for (vex::Feature* const bearer : analysis.Bearers()) {
        ASSERT_EQ(SetAlias(*bearer, "harmless"), S_OK);
    }
    EXPECT_NE(analysis.Deck(GetParam()).find("Amplitude=HLXTabularAmplitudeLT[1],"),
              std::string::npos)
        << "case and amplitude share their alias";
    const std::string outline = OutlineOf(ReadDeck(analysis.Deck(GetParam())));
    std::set<std::string> texts;
    for (const HostileName& name : StorableNames()) {
        SCOPED_TRACE(name.label);
        for (vex::Feature* const bearer : analysis.Bearers()) {
            ASSERT_EQ(SetAlias(*bearer, name.bytes), S_OK);
        }
        const std::string deck = analysis.Deck(GetParam());
        EXPECT_TRUE(texts.insert(deck).second) << "another name gives the same deck";
        const std::vector<DeckLine> lines = ReadDeck(deck);
        EXPECT_EQ(OutlineOf(lines), outline);
        EXPECT_EQ(lines.at(1).texts, std::vector{name.bytes}) << "the heading";
        EXPECT_EQ(lines.at(2).texts, std::vector(2, name.bytes)) << "the case and its job";
        for (const char* const keyword :
             {"CASE", "HISTORY", "STEP", "LOADS", "GRAVITY", "TABULAR AMPLITUDE"}) {
            const std::vector<DeckLine> found = LinesOf(lines, keyword);
            ASSERT_EQ(found.size(), 1U) << keyword;
            EXPECT_EQ(found[0].Text("NAME"), name.bytes) << keyword;
        }
    }
}

TEST(AliasNames, ChangeNothingButThemselvesInTheDump)
{
    NamedAnalysis analysis;
    for (vex::Feature* const bearer : analysis.Bearers()) {
        ASSERT_EQ(SetAlias(*bearer, "harmless"), S_OK);
    }
    const std::string outline = OutlineOf(ReadDump(analysis.Dump()));
    std::set<std::string> texts;
    for (const HostileName& name : StorableNames()) {
        SCOPED_TRACE(name.label);
        for (vex::Feature* const bearer : analysis.Bearers()) {
            ASSERT_EQ(SetAlias(*bearer, name.bytes), S_OK);
        }
        const std::string dump = analysis.Dump();
        EXPECT_TRUE(texts.insert(dump).second) << "another name gives the same dump";
        const std::vector<DumpLine> lines = ReadDump(dump);
        EXPECT_EQ(OutlineOf(lines), outline);
        EXPECT_EQ(std::ranges::count(lines, name.bytes, &DumpLine::alias),
                  std::ssize(analysis.Bearers()));
    }
}

TEST(AliasNames, ThatAreEmptyAreNone)
{
    NamedAnalysis analysis;
    for (vex::Feature* const bearer : analysis.Bearers()) {
        ASSERT_EQ(SetAlias(*bearer, ""), S_OK);
    }
    analysis.Reopen();
    for (const DumpLine& line : ReadDump(analysis.Dump())) {
        const bool hasName = line.type == "HLXHacInitialStepLT";
        EXPECT_EQ(line.alias, hasName ? "Initial" : "") << line.type;
    }
    EXPECT_FALSE(LinesOf(ReadDeck(analysis.Deck()), "GRAVITY").at(0).Has("NAME"));
}

}  // namespace

}  // namespace hlxtest
