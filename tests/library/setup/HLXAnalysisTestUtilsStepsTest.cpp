// SPDX-License-Identifier: Apache-2.0
// Steps made from a list of codes, without a test case.
#include "library/setup/StepCodes.h"

#include "support/FlushedOutput.h"
#include "support/ForeignNumbers.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::CreateSteps),
                             HRESULT (*)(VEXListValVEXUnicodeString&, VEXISamAnalysisCase*,
                                         VEXListPtrVEXBaseUnknown&)>);

// --- Kinds, names and messages -------------------------------------------------------------------

class StepKindTest : public StepCodesTest, public testing::WithParamInterface<StepKind>
{};

TEST_P(StepKindTest, OfACodeIsMadeNamedAndTold)
{
    const StepKind& kind = GetParam();
    EXPECT_EQ(Create({kind.code}), (Outcome{S_OK, std::string(kind.code) + "\n" + kind.told, ""}));
    EXPECT_EQ(Made(), (Lines{kind.Step(1)}));
    EXPECT_EQ(StepsOf(Case(1)), (Lines{kind.Step(1)}));
    EXPECT_EQ(StepsOf(Case(2)), Lines{});
}

TEST_P(StepKindTest, IsMadeByOneCallOfThePlatform)
{
    const StepKind& kind = GetParam();
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen({"nothing", kind.code}); }), (Lines{kind.Call(2)}));
}

TEST_P(StepKindTest, IsHeldByTheListAlone)
{
    EXPECT_EQ(HeldAfter("", [&] { return CreateUnseen({GetParam().code}); }),
              (HeldCounts{{GetParam().lateType, 1}}));
    ASSERT_EQ(steps.Size(), 1);
    EXPECT_EQ(References(*steps[1]), 1U);
}

INSTANTIATE_TEST_SUITE_P(Of, StepKindTest, testing::ValuesIn(stepKinds), NameOfKind);

TEST_F(StepCodesTest, AllKindsInOneListAreMadeInItsOrder)
{
    EXPECT_EQ(Create({"EDS", "HTS", "RS", "SPS", "GSS"}),
              (Outcome{S_OK,
                       "EDS\nAdding Explicit Dynamic step succeeded !\n"
                       "HTS\nAdding Static HT step succeeded !\n"
                       "RS\nAdding Riks step succeeded !\n"
                       "SPS\nAdding Static LP step succeeded !\n"
                       "GSS\nAdding General Static step succeeded !\n",
                       ""}));
    const Lines expected = {"HLXExplicitDynamicLT: Explicit_Dynamic_Step_1",
                            "HLXHeatTransferStepLT: "
                            "Heat_Transfer_Step_2",
                            "HLXRiksStepLT: Riks_Step_3",
                            "HLXStaticLPStepLT: Staic_Perturbation_Step_4",
                            "HLXGeneralStaticStepLT: General_Static_Step_5"};
    EXPECT_EQ(Made(), expected);
    EXPECT_EQ(StepsOf(Case(1)), expected);
}

TEST_F(StepCodesTest, NamesCountPositionsNotKinds)
{
    Create({"GSS", "HTS", "GSS"});
    EXPECT_EQ(Made(), (Lines{"HLXGeneralStaticStepLT: General_Static_Step_1",
                             "HLXHeatTransferStepLT: Heat_Transfer_Step_2",
                             "HLXGeneralStaticStepLT: General_Static_Step_3"}));
}

TEST_F(StepCodesTest, APositionBeyondAThousandIsPlainDigitsInAnyLocale)
{
    const ForeignNumbers foreign;
    std::vector<const char*> list(1234, "");
    list[9] = list[999] = list[1233] = "RS";
    EXPECT_EQ(Create(list).result, S_OK);
    EXPECT_EQ(Made(), (Lines{"HLXRiksStepLT: Riks_Step_10", "HLXRiksStepLT: Riks_Step_1000",
                             "HLXRiksStepLT: Riks_Step_1234"}));
}

TEST_F(StepCodesTest, ASecondCallCountsFromOneAndAppends)
{
    Create({"GSS", "RS"});
    EXPECT_EQ(Create({"GSS"}).result, S_OK);
    const Lines expected = {"HLXGeneralStaticStepLT: General_Static_Step_1",
                            "HLXRiksStepLT: Riks_Step_2",
                            "HLXGeneralStaticStepLT: General_Static_Step_1"};
    EXPECT_EQ(Made(), expected);
    EXPECT_EQ(StepsOf(Case(1)), expected);
}

TEST_F(StepCodesTest, AnotherCaseGetsItsOwnSteps)
{
    analysisCase = Case(2);
    EXPECT_EQ(Create({"RS"}).result, S_OK);
    EXPECT_EQ(StepsOf(Case(1)), Lines{});
    EXPECT_EQ(StepsOf(Case(2)), (Lines{"HLXRiksStepLT: Riks_Step_1"}));
}

// --- Other codes ---------------------------------------------------------------------------------

class OtherCodeTest : public StepCodesTest, public testing::WithParamInterface<const char*>
{};

TEST_P(OtherCodeTest, IsPrintedAndSkipped)
{
    const std::string code = GetParam();
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen({GetParam()}); }), Lines{});
    EXPECT_EQ(Create({GetParam()}), (Outcome{S_OK, code + "\n", ""}));
    EXPECT_EQ(Made(), Lines{});
    EXPECT_EQ(StepsOf(Case(1)), Lines{});
}

INSTANTIATE_TEST_SUITE_P(Of, OtherCodeTest,
                         testing::Values("gss", "Gss", "GSS ", " GSS", "GS", "GSSS", "sps", "SPS ",
                                         "SP", "rs", "RS ", "R", "RSS", "hts", "HTS\n", "HT", "eds",
                                         "EDS ", "ED", "", " ", "%s%n", "\xC3\xA4", "\xFF",
                                         "GSS,RS", "HLXRiksStepLT", "Riks_Step_"),
                         [](const auto& row) { return "Number" + std::to_string(row.index); });

TEST_F(StepCodesTest, ASkippedEntryLeavesAGapInTheNames)
{
    EXPECT_EQ(Create({"GSS", "unknown", "SPS"}),
              (Outcome{S_OK,
                       "GSS\nAdding General Static step succeeded !\n"
                       "unknown\n"
                       "SPS\nAdding Static LP step succeeded !\n",
                       ""}));
    EXPECT_EQ(Made(), (Lines{"HLXGeneralStaticStepLT: General_Static_Step_1",
                             "HLXStaticLPStepLT: Staic_Perturbation_Step_3"}));
}

TEST_F(StepCodesTest, AnEmptyListPrintsNothing)
{
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen({}); }), Lines{});
    EXPECT_EQ(Create({}), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Made(), Lines{});
}

// --- In what order, and when flushed -------------------------------------------------------------

TEST_F(StepCodesTest, EachLineIsFlushedBeforeWhatFollowsIt)
{
    Lines seen;
    HRESULT result = E_UNEXPECTED;
    VEXListValVEXUnicodeString list = ListOf({"GSS", "x", "RS"});
    {
        FlushedOutput output;
        output.atFlush = [&] {
            const std::size_t inDocument = StepsOf(Case(1)).size();
            seen.push_back(output.Text() + std::to_string(inDocument) + " made, " +
                           std::to_string(steps.Size()) + " appended");
        };
        result = Utils::CreateSteps(list, analysisCase.Get(), steps);
    }
    EXPECT_EQ(result, S_OK);
    EXPECT_EQ(seen, (Lines{
                        "GSS\n0 made, 0 appended",
                        "GSS\nAdding General Static step succeeded !\n1 made, 0 appended",
                        "GSS\nAdding General Static step succeeded !\nx\n1 made, 1 appended",
                        "GSS\nAdding General Static step succeeded !\nx\nRS\n1 made, 1 appended",
                        "GSS\nAdding General Static step succeeded !\nx\nRS\n"
                        "Adding Riks step succeeded !\n2 made, 1 appended",
                    }));
}

TEST_F(StepCodesTest, TheSizeOfTheListIsReadAfterEveryPass)
{
    VEXListValVEXUnicodeString list = ListOf({"x"});
    HRESULT result = E_UNEXPECTED;
    std::string text;
    {
        FlushedOutput output;
        output.atFlush = [&] {
            text = output.Text();
            if (list.Size() < 3) {
                list.Append("RS");
            }
        };
        result = Utils::CreateSteps(list, analysisCase.Get(), steps);
    }
    EXPECT_EQ(result, S_OK);
    EXPECT_EQ(text,
              "x\nRS\nAdding Riks step succeeded !\n"
              "RS\nAdding Riks step succeeded !\n");
    EXPECT_EQ(Made(), (Lines{"HLXRiksStepLT: Riks_Step_2", "HLXRiksStepLT: Riks_Step_3"}));
}

TEST_F(StepCodesTest, TheCodesAreLeftAsTheyAre)
{
    VEXListValVEXUnicodeString list = ListOf({"GSS", "x"});
    Capture([&] { Utils::CreateSteps(list, analysisCase.Get(), steps); });
    ASSERT_EQ(list.Size(), 2);
    EXPECT_EQ(list[1], "GSS");
    EXPECT_EQ(list[2], "x");
}

}  // namespace
}  // namespace hlxtest::statics
