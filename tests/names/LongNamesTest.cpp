// SPDX-License-Identifier: Apache-2.0
// Names of a mebibyte: kept like any other, and no text grows with their square.
#include "host/feature/FeatureTree.h"
#include "names/DeckGrammar.h"
#include "names/DumpGrammar.h"
#include "names/HostileNames.h"
#include "names/NamedAnalysis.h"

#include <gtest/gtest.h>

#include <ctime>

namespace hlxtest {

namespace {

constexpr std::size_t kLong = std::size_t{1} << 20U;

/// Seconds of computing; far more than what is needed, and far less than what grows with a square
/// takes.
constexpr double kPatience = 20.0;

constexpr const char* kBearer = "HLXTabularAmplitudeLT";

class LongNames : public testing::TestWithParam<const char*>
{
protected:
    std::string name = Repeated(GetParam(), kLong);
};

INSTANTIATE_TEST_SUITE_P(Of, LongNames,
                         testing::Values("x", "\u00e9", "\U0001d11e", "\"", "\\", "\n", "\x01",
                                         "\u2028", "'", "%n", " ", "*STEP\n"));

TEST_P(LongNames, AreKeptAndReadBackFromBothTexts)
{
    NamedAnalysis analysis;
    ASSERT_EQ(SetAlias(analysis.Only(kBearer), name), S_OK);
    ASSERT_EQ(
        analysis.Only("HLXGeneralStaticStepLT").Set("Description", vex::Boxed<std::string>(name)),
        S_OK);
    analysis.Reopen();
    EXPECT_TRUE(AliasOf(analysis.Only(kBearer)) == name);
    bool found = false;
    for (const DumpLine& line : ReadDump(analysis.Dump())) {
        found = found || (line.type == kBearer && line.alias == name);
        // The path would be too long: the reference is a place.
        if (line.type == "HLXGravity") {
            EXPECT_TRUE(line.attributes.at(0).second.starts_with('#'));
        }
    }
    EXPECT_TRUE(found);
    const std::vector<DeckLine> deck = ReadDeck(analysis.Deck());
    EXPECT_TRUE(LinesOf(deck, "TABULAR AMPLITUDE").at(0).Text("NAME") == name);
    EXPECT_TRUE(LinesOf(deck, "STEP").at(0).Text("Description") == name);
}

/// The dump of features that all bear the name, half of them below each other, each with a
/// reference to it.
std::string DumpOfBearers(const std::string& name, int count, double& seconds)
{
    NamedAnalysis analysis;
    vex::Feature& loads = analysis.Only("HLXLoadContainerLT");
    vex::Feature* parent = &analysis.Model();
    for (int i = 0; i < count; ++i) {
        vex::Feature& made =
            parent->Tree()->Create(vex::LateTypes::Instance().Require(kBearer), parent);
        EXPECT_EQ(SetAlias(made, name), S_OK);
        vex::Feature& load =
            loads.Tree()->Create(vex::LateTypes::Instance().Require("HLXGravity"), &loads);
        EXPECT_EQ(load.Set("Amplitude", vex::Reference{made.Id()}), S_OK);
        parent = i % 2 == 0 ? &made : parent;
    }
    // Of this process: other work on the machine does not count.
    const std::clock_t start = std::clock();
    std::string dump = analysis.Dump();
    seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    return dump;
}

TEST(LongNamesOfMany, AreDumpedAtOnce)
{
    for (const char* const piece : {"x", "\u00e9"}) {
        double seconds = 0;
        const std::string dump = DumpOfBearers(Repeated(piece, kLong), 100, seconds);
        EXPECT_LT(seconds, kPatience);
        EXPECT_GE(dump.size(), 100 * kLong);
        EXPECT_LE(dump.size(), 100 * kLong + 100'000);
    }
}

TEST_P(LongNames, OfManyTakeNoMoreThanTheirEscapes)
{
    double seconds = 0;
    const std::string dump = DumpOfBearers(name, 10, seconds);
    EXPECT_LT(seconds, kPatience);
    EXPECT_GE(dump.size(), 10 * kLong);
    EXPECT_LE(dump.size(), 10 * 5 * kLong + 10'000) << "a control takes five bytes";
}

}  // namespace

}  // namespace hlxtest
