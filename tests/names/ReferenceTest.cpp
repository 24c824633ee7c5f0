// SPDX-License-Identifier: Apache-2.0
// References whose targets have hostile names: each path means one feature, and tells its aliases.
#include "host/feature/FeatureTree.h"
#include "names/DeckGrammar.h"
#include "names/DumpGrammar.h"
#include "names/HostileNames.h"
#include "names/NamedAnalysis.h"
#include "names/QuotedText.h"

#include <gtest/gtest.h>

#include <set>

namespace hlxtest {

namespace {

using vex::Feature;

constexpr const char* kTarget = "HLXTabularAmplitudeLT";

Feature& Make(const char* type, Feature& parent, const std::string& alias)
{
    Feature& feature = parent.Tree()->Create(vex::LateTypes::Instance().Require(type), &parent);
    EXPECT_EQ(SetAlias(feature, alias), S_OK);
    return feature;
}

/// A gravity at the end of the loads that refers to `target`.
void Refer(const NamedAnalysis& analysis, const Feature& target)
{
    Feature& load = Make("HLXGravity", analysis.Only("HLXLoadContainerLT"), "");
    EXPECT_EQ(load.Set("Amplitude", vex::Reference{target.Id()}), S_OK);
}

/// The references of all loads in the dump, as written.
std::vector<std::string> ReferencesIn(const std::string& dump)
{
    std::vector<std::string> references;
    for (const DumpLine& line : ReadDump(dump)) {
        for (const auto& [name, value] : line.attributes) {
            if (name == "Amplitude") references.push_back(value);
        }
    }
    return references;
}

std::vector<std::string> ReferencesInDeck(const std::string& deck)
{
    std::vector<std::string> references;
    for (const DeckLine& line : LinesOf(ReadDeck(deck), "GRAVITY")) {
        for (const auto& [name, value] : line.parameters) {
            if (name == "Amplitude") references.push_back(value);
        }
    }
    return references;
}

std::vector<std::string> AliasesOf(std::string_view path)
{
    std::vector<std::string> aliases;
    EXPECT_TRUE(TakeReference(path, aliases) && path.empty()) << path;
    return aliases;
}

TEST(ReferenceNames, TellTheAliasOfEachTarget)
{
    NamedAnalysis analysis;
    for (const HostileName& name : StorableNames()) {
        Refer(analysis, Make(kTarget, analysis.Model(), name.bytes));
    }
    analysis.Reopen();
    for (const auto& references :
         {ReferencesIn(analysis.Dump()), ReferencesInDeck(analysis.Deck())}) {
        // The first load is the analysis's own.
        ASSERT_EQ(references.size(), StorableNames().size() + 1);
        for (std::size_t i = 0; i < StorableNames().size(); ++i) {
            EXPECT_EQ(AliasesOf(references[i + 1]), std::vector{StorableNames()[i].bytes})
                << StorableNames()[i].label;
        }
        EXPECT_EQ(std::set(references.begin(), references.end()).size(), references.size());
    }
}

TEST(ReferenceNames, TellTheAliasesOfAllThatTheTargetStandsBelow)
{
    NamedAnalysis analysis;
    std::vector<std::vector<std::string>> expected;
    const HostileNames& names = StorableNames();
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string& below = names[(i + 1) % names.size()].bytes;
        Feature& middle = Make(kTarget, Make(kTarget, analysis.Model(), names[i].bytes), below);
        Refer(analysis, Make(kTarget, middle, names[i].bytes));
        expected.push_back({names[i].bytes, below, names[i].bytes});
    }
    const std::vector<std::string> references = ReferencesIn(analysis.Dump());
    EXPECT_EQ(ReferencesInDeck(analysis.Deck()), references);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_LE(references.at(i + 1).size(), 1024U);
        const bool isShort = references[i + 1].front() != '#';
        EXPECT_TRUE(isShort ? AliasesOf(references[i + 1]) == expected[i]
                            : expected[i][0].size() + expected[i][1].size() > 250)
            << names[i].label;
    }
    EXPECT_EQ(std::set(references.begin(), references.end()).size(), references.size());
}

TEST(ReferenceNames, AreByPlaceWhereTwoSiblingsShareAnAlias)
{
    NamedAnalysis analysis;
    std::vector<std::string> expected;
    // The analysis has an amplitude of its own.
    std::size_t place = 1;
    for (const HostileName& name : StorableNames()) {
        for (int twin = 0; twin < 2; ++twin) {
            Refer(analysis, Make(kTarget, analysis.Model(), name.bytes));
            expected.push_back(std::string(kTarget) + "[" + std::to_string(++place) + "]");
        }
    }
    std::vector<std::string> references = ReferencesIn(analysis.Dump());
    references.erase(references.begin());
    EXPECT_EQ(references, expected);
    std::vector<std::string> inDeck = ReferencesInDeck(analysis.Deck());
    inDeck.erase(inDeck.begin());
    EXPECT_EQ(inDeck, expected);
}

/// An alias that reads like the path of another feature is told from that path.
TEST(ReferenceNames, AreNotForgedByAnAliasThatReadsLikeAPath)
{
    NamedAnalysis analysis;
    Feature& outer = Make(kTarget, analysis.Model(), "a");
    Refer(analysis, Make(kTarget, outer, "b"));
    Refer(analysis, Make(kTarget, outer, ""));
    for (const char* const alias : {"a/b", "\"a\"/\"b\"", "a\"/\"b", "HLXTabularAmplitudeLT[1]",
                                    "a/HLXTabularAmplitudeLT[2]", "#3", ".", "/", "none"}) {
        Refer(analysis, Make(kTarget, analysis.Model(), alias));
    }
    const std::vector<std::string> references = ReferencesIn(analysis.Dump());
    EXPECT_EQ(references.size(), 12U);
    EXPECT_EQ(std::set(references.begin(), references.end()).size(), references.size());
    EXPECT_EQ(references.at(1), "\"a\"/\"b\"");
    EXPECT_EQ(references.at(2), "\"a\"/HLXTabularAmplitudeLT[2]");
}

}  // namespace

}  // namespace hlxtest
