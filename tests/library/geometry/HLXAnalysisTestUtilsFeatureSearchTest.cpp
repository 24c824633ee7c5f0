// SPDX-License-Identifier: Apache-2.0
// Features found by name in the sets of a document, without a test case.
#include "library/StaticSteps.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::GetFeatureByName),
                             HRESULT (*)(VEXUnicodeString, VEXUnicodeString, VEXUnicodeString,
                                         VEXISpecObject_var&, VEXDocument*)>);

/// Two cases; the first has the static steps "One" and "Two" behind its first one, the second has
/// "Three". Clamps and pressures stand below them.
class StaticFeatureSearchTest : public StaticSteps
{
protected:
    StaticFeatureSearchTest()
    {
        hlxtest::AddCase(analysis.Get());
        one = AddStep(1, "HLXGeneralStaticStepLT", "One");
        two = AddStep(1, "HLXGeneralStaticStepLT", "Two");
        three = AddStep(2, "HLXGeneralStaticStepLT", "Three");
    }

    Outcome Find(const char* lateType, const char* name, std::string_view faults = "",
                 const char* setType = "HLXGeneralStaticStepLT")
    {
        return RunWith(faults, [&] {
            return Utils::GetFeatureByName(lateType, setType, name, feature, analysis.Get());
        });
    }

    VEXISpecObject_var one;
    VEXISpecObject_var two;
    VEXISpecObject_var three;
    const VEXISpecObject_var former = AddStep(1, "HLXFrequencyStepLT", "Former");
    VEXISpecObject_var feature = former;
};

TEST_F(StaticFeatureSearchTest, NamesArePrintedInOrderUntilTheMatch)
{
    Add(one, "HLXClamp", "first");
    Add(one, "HLXPressure", "of another type");
    Add(one, "HLXClamp", "second");
    Add(two, "HLXClamp", "third");
    const VEXISpecObject_var wanted = Add(three, "HLXClamp", "wanted");
    Add(three, "HLXClamp", "behind it");
    EXPECT_EQ(Find("HLXClamp", "wanted"), (Outcome{S_OK, "first\nsecond\nthird\nwanted\n", ""}));
    EXPECT_TRUE(feature == wanted);
}

TEST_F(StaticFeatureSearchTest, TheFirstMatchWins)
{
    Add(one, "HLXClamp", "other");
    const VEXISpecObject_var first = Add(one, "HLXClamp", "twice");
    Add(one, "HLXClamp", "twice");
    Add(two, "HLXClamp", "twice");
    EXPECT_EQ(Find("HLXClamp", "twice"), (Outcome{S_OK, "other\ntwice\n", ""}));
    EXPECT_TRUE(feature == first);
}

TEST_F(StaticFeatureSearchTest, FeaturesAtAnyDepthAreLookedAtEachBeforeThoseBelowIt)
{
    const VEXISpecObject_var loads = Below(one, "HLXLoadContainerLT")[1];
    const VEXISpecObject_var upper = Add(loads, "HLXPressure", "upper");
    const VEXISpecObject_var lower = Add(upper, "HLXPressure", "lower");
    Add(one, "HLXPressure", "beside");
    EXPECT_EQ(Find("HLXPressure", "none"), (Outcome{E_FAIL, "upper\nlower\nbeside\n", ""}));
    EXPECT_EQ(Find("HLXPressure", "lower"), (Outcome{S_OK, "upper\nlower\n", ""}));
    EXPECT_TRUE(feature == lower);
}

TEST_F(StaticFeatureSearchTest, WithoutAMatchEveryNameIsPrintedAndTheFeatureStays)
{
    Add(one, "HLXClamp", "a");
    Add(three, "HLXClamp", "b");
    EXPECT_EQ(Find("HLXClamp", "c"), (Outcome{E_FAIL, "a\nb\n", ""}));
    EXPECT_TRUE(feature == former);
}

TEST_F(StaticFeatureSearchTest, SetsWithoutSuchFeaturesPrintNothing)
{
    EXPECT_EQ(Find("HLXClamp", "a"), (Outcome{E_FAIL, "", ""}));
    EXPECT_TRUE(feature == former);
}

TEST_F(StaticFeatureSearchTest, NoSuchSetIsNoFailure)
{
    Add(one, "HLXClamp", "a");
    EXPECT_EQ(Find("HLXClamp", "a", "", "HLXRiksStepLT"), (Outcome{1, "", ""}));
    EXPECT_EQ(Find("HLXClamp", "a", "HLXAnalysisDocUtils::GetAnalysisSets=empty"),
              (Outcome{1, "", ""}));
    EXPECT_TRUE(feature == former);
}

TEST_F(StaticFeatureSearchTest, OnlySetsOfTheTypeAreSearched)
{
    Add(one, "HLXClamp", "in a static step");
    const VEXISpecObject_var wanted = Add(former, "HLXClamp", "in a frequency step");
    EXPECT_EQ(Find("HLXClamp", "in a frequency step", "", "HLXFrequencyStepLT"),
              (Outcome{S_OK, "in a frequency step\n", ""}));
    EXPECT_TRUE(feature == wanted);
}

TEST_F(StaticFeatureSearchTest, NamesAreComparedAsTheyAre)
{
    Add(one, "HLXClamp", "Name");
    for (const char* const name : {"name", "Nam", "Name ", " Name", "Names", ""}) {
        EXPECT_EQ(Find("HLXClamp", name), (Outcome{E_FAIL, "Name\n", ""})) << name;
    }
    EXPECT_TRUE(feature == former);
}

TEST_F(StaticFeatureSearchTest, AFeatureWithoutANameIsAnEmptyLineAndFoundByTheEmptyName)
{
    Add(one, "HLXClamp", "named");
    const VEXISpecObject_var nameless = Add(one, "HLXClamp");
    Add(two, "HLXClamp");
    EXPECT_EQ(Find("HLXClamp", ""), (Outcome{S_OK, "named\n\n", ""}));
    EXPECT_TRUE(feature == nameless);
    EXPECT_EQ(Find("HLXClamp", "x"), (Outcome{E_FAIL, "named\n\n\n", ""}));
}

class StaticOddNameTest : public StaticFeatureSearchTest,
                          public testing::WithParamInterface<const char*>
{};

TEST_P(StaticOddNameTest, IsPrintedAsItIsAndFound)
{
    const VEXISpecObject_var odd = Add(one, "HLXClamp", GetParam());
    Add(one, "HLXClamp", "behind it");
    EXPECT_EQ(Find("HLXClamp", GetParam()), (Outcome{S_OK, GetParam() + std::string("\n"), ""}));
    EXPECT_TRUE(feature == odd);
}

INSTANTIATE_TEST_SUITE_P(Of, StaticOddNameTest,
                         testing::Values("two words", " blanks around ", "\xC3\xA4\xE2\x82\xAC",
                                         "\xF0\x9F\x98\x80", "100%", "%s%n%d", "%%", "a\tb\nc",
                                         "back\\slash \"quoted\"", "\033[31m"),
                         [](const auto& row) { return "Number" + std::to_string(row.index); });

TEST_F(StaticFeatureSearchTest, ANameOfAHundredThousandBytesIsPrintedWhole)
{
    const std::string name(100'000, 'n');
    const VEXISpecObject_var wanted = Add(one, "HLXClamp", name.c_str());
    EXPECT_EQ(Find("HLXClamp", name.c_str()), (Outcome{S_OK, name + "\n", ""}));
    EXPECT_TRUE(feature == wanted);
}

// --- The platform --------------------------------------------------------------------------------

TEST_F(StaticFeatureSearchTest, SetsAndFeaturesAreAskedInOrder)
{
    Add(one, "HLXClamp", "a");
    Add(two, "HLXClamp", "b");
    Add(two, "HLXClamp", "c");
    std::vector<std::string> calls;
    Capture([&] {
        calls = CallsOf(
            [&] {
                Utils::GetFeatureByName("HLXClamp", "HLXGeneralStaticStepLT", "b", feature,
                                        analysis.Get());
            },
            {"HLXAnalysisDocUtils::", "VEXISamAnalysisSet::", "VEXIAlias::"});
    });
    EXPECT_EQ(calls, (std::vector<std::string>{
                         "HLXAnalysisDocUtils::GetAnalysisSets(&, VEXAnalysisDocument, "
                         "\"HLXGeneralStaticStepLT\")",
                         "VEXISamAnalysisSet::GetAnalysisFeatures(\"HLXClamp\", &)",
                         "VEXIAlias::GetAlias()",
                         "VEXISamAnalysisSet::GetAnalysisFeatures(\"HLXClamp\", &)",
                         "VEXIAlias::GetAlias()",
                     }));
}

TEST_F(StaticFeatureSearchTest, OnlyTheFeatureIsHeld)
{
    Add(one, "HLXClamp", "a");
    Add(one, "HLXClamp", "b");
    EXPECT_EQ(HeldAfter([&] { Find("HLXClamp", "b"); }), (HeldCounts{{"HLXClamp", 1}}));
    EXPECT_EQ(References(*feature.Get()), 1U);
    EXPECT_EQ(HeldAfter([&] { Find("HLXClamp", "c"); }), HeldCounts{});
    feature.Reset();
    EXPECT_EQ(HeldAfter([&] { Find("HLXClamp", "c"); }), HeldCounts{});
}

class StaticSearchExitTest : public StaticFeatureSearchTest,
                             public testing::WithParamInterface<Exit>
{};

TEST_P(StaticSearchExitTest, AnswersAndPrintsTheNamesVisited)
{
    Add(one, "HLXClamp", "a");
    Add(two, "HLXClamp", "b");
    const VEXISpecObject_var wanted = Add(three, "HLXClamp", "c");
    EXPECT_EQ(Find("HLXClamp", "c", GetParam().faults),
              (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_TRUE(feature == (GetParam().result == S_OK ? wanted : former));
    EXPECT_EQ(HeldAfter([&] { Find("HLXClamp", "none", GetParam().faults); }), HeldCounts{});
}

INSTANTIATE_TEST_SUITE_P(
    Of, StaticSearchExitTest,
    testing::Values(
        Exit{"FailingSets", "HLXAnalysisDocUtils::GetAnalysisSets=E_ACCESSDENIED", E_ACCESSDENIED,
             ""},
        Exit{"FailingSetsThoughGiven", "HLXAnalysisDocUtils::GetAnalysisSets=E_UNEXPECTED,keep",
             E_UNEXPECTED, ""},
        Exit{"PositiveSets", "HLXAnalysisDocUtils::GetAnalysisSets=S_FALSE,keep", S_OK,
             "a\nb\nc\n"},
        Exit{"NoSet", "cast:HLXGeneralStaticStepLT->VEXISamAnalysisSet=E_NOINTERFACE", E_FAIL, ""},
        Exit{"SecondIsNoSet", "cast:HLXGeneralStaticStepLT->VEXISamAnalysisSet#2=null", S_OK,
             "a\nc\n"},
        Exit{"FailingFeatures", "VEXISamAnalysisSet::GetAnalysisFeatures#2=E_ACCESSDENIED", S_OK,
             "a\nc\n"},
        Exit{"NoFeatures", "VEXISamAnalysisSet::GetAnalysisFeatures=empty", E_FAIL, ""},
        Exit{"FailingFeaturesThoughGiven",
             "VEXISamAnalysisSet::GetAnalysisFeatures=E_UNEXPECTED,keep", S_OK, "a\nb\nc\n"},
        Exit{"NoAlias", "cast:HLXClamp->VEXIAlias=E_NOINTERFACE", E_FAIL, ""},
        Exit{"SecondHasNoAlias", "cast:HLXClamp->VEXIAlias#2=null", S_OK, "a\nc\n"},
        Exit{"EmptyName", "VEXIAlias::GetAlias#2=empty", S_OK, "a\n\nc\n"}),
    NameOf);

TEST_F(StaticFeatureSearchTest, AMatchThatIsNoFeatureSucceedsAndGivesNone)
{
    Add(one, "HLXClamp", "a");
    EXPECT_EQ(Find("HLXClamp", "a", "cast:HLXClamp->VEXISpecObject=E_NOINTERFACE"),
              (Outcome{S_OK, "a\n", ""}));
    EXPECT_FALSE(feature);
}

TEST_F(StaticFeatureSearchTest, ADocumentThatIsNoneOrOfAnotherTypeAnswersThePlatformsResult)
{
    for (VEXDocument* const document : {static_cast<VEXDocument*>(nullptr), New("VEXPart")}) {
        EXPECT_EQ(OutcomeOf([&] {
                      return Utils::GetFeatureByName("HLXClamp", "HLXStepLT", "a", feature,
                                                     document);
                  }),
                  (Outcome{E_INVALIDARG, "", ""}));
        EXPECT_TRUE(feature == former);
    }
}

}  // namespace
}  // namespace hlxtest::statics
