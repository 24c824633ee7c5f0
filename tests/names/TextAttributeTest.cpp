// SPDX-License-Identifier: Apache-2.0
// Texts that are attributes: kept byte for byte or refused, told from each other in both texts.
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

constexpr const char* kStep = "HLXGeneralStaticStepLT";

HRESULT Describe(vex::Feature& step, const std::string& text)
{
    return step.Set("Description", vex::Boxed<std::string>(text));
}

TEST(TextAttributes, AreKeptByteForByteAndToldFromEachOther)
{
    NamedAnalysis analysis;
    for (const HostileName& name : StorableNames()) {
        vex::Feature& history = analysis.Only("HLXHacSimHistLT");
        vex::Feature& step =
            history.Tree()->Create(vex::LateTypes::Instance().Require(kStep), &history);
        ASSERT_EQ(Describe(step, name.bytes), S_OK) << name.label;
    }
    analysis.Reopen();
    std::vector<std::string> kept;
    for (vex::Feature* const feature : FeaturesOf(analysis.Model())) {
        if (feature->Kind().name == kStep) {
            kept.push_back(feature->GetAs<std::string>("Description"));
        }
    }
    std::vector<std::string> dumped;
    for (const DumpLine& line : ReadDump(analysis.Dump())) {
        if (line.type == kStep) {
            dumped.push_back(line.attributes.empty() ? "" : Unquoted(line.attributes.at(0).second));
        }
    }
    std::vector<std::string> written;
    for (const DeckLine& line : LinesOf(ReadDeck(analysis.Deck()), "STEP")) {
        written.push_back(line.Text("Description"));
    }
    std::vector<std::string> expected{""};
    for (const HostileName& name : StorableNames()) {
        expected.push_back(name.bytes);
    }
    EXPECT_EQ(kept, expected);
    EXPECT_EQ(dumped, expected);
    EXPECT_EQ(written, expected);
}

TEST(TextAttributes, ThatCannotBeStoredAreRefusedAndChangeNothing)
{
    NamedAnalysis analysis;
    vex::Feature& step = analysis.Only(kStep);
    ASSERT_EQ(Describe(step, "before"), S_OK);
    for (const HostileName& name : UnstorableNames()) {
        EXPECT_EQ(Describe(step, name.bytes), E_INVALIDARG) << name.label;
        EXPECT_EQ(step.GetAs<std::string>("Description"), "before") << name.label;
    }
}

TEST(TextAttributes, ChangeNothingButThemselves)
{
    NamedAnalysis analysis;
    vex::Feature& step = analysis.Only(kStep);
    ASSERT_EQ(Describe(step, "harmless"), S_OK);
    const std::string dump = OutlineOf(ReadDump(analysis.Dump()));
    const std::string deck = OutlineOf(ReadDeck(analysis.Deck()));
    for (const HostileName& name : StorableNames()) {
        SCOPED_TRACE(name.label);
        ASSERT_EQ(Describe(step, name.bytes), S_OK);
        EXPECT_EQ(OutlineOf(ReadDump(analysis.Dump())), dump);
        EXPECT_EQ(OutlineOf(ReadDeck(analysis.Deck())), deck);
    }
}

}  // namespace

}  // namespace hlxtest
