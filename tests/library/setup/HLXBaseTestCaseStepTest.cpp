// SPDX-License-Identifier: Apache-2.0
// One step, made by the product's factory in the first analysis case of a test case.
#include "library/setup/CaseSteps.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

static_assert(
    std::is_same_v<decltype(&ExposedTestCase::CreateStep),
                   HRESULT (HLXBaseTestCase::*)(const VEXUnicodeString&, const VEXUnicodeString&,
                                                VEXISamAnalysisSet*&)>);

// --- What is made --------------------------------------------------------------------------------

class CaseStepKindTest : public CaseStepTest, public testing::WithParamInterface<const char*>
{};

TEST_P(CaseStepKindTest, IsMadeAndNamedWithoutAWord)
{
    const std::string expected = std::string(GetParam()) + ": Load up";
    EXPECT_EQ(Create(GetParam(), "Load up"), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Step(), expected);
    EXPECT_EQ(StepsOf(Case(1)), (Lines{expected}));
    EXPECT_EQ(StepsOf(Case(2)), Lines{});
}

INSTANTIATE_TEST_SUITE_P(Of, CaseStepKindTest,
                         testing::Values("HLXGeneralStaticStepLT", "HLXStaticLPStepLT",
                                         "HLXRiksStepLT", "HLXFrequencyStepLT",
                                         "HLXHeatTransferStepLT", "HLXExplicitDynamicStepLT",
                                         "HLXExplicitDynamicLT"),
                         [](const auto& row) { return std::string(row.param); });

TEST_F(CaseStepTest, StepsFollowEachOther)
{
    Create("HLXRiksStepLT", "One");
    const VEXISpecObject_var first = TakeStep();
    EXPECT_EQ(Create("HLXRiksStepLT", "Two"), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Step(), "HLXRiksStepLT: Two");
    EXPECT_EQ(AliasOf(first), "One");
    EXPECT_EQ(StepsOf(Case(1)), (Lines{"HLXRiksStepLT: One", "HLXRiksStepLT: Two"}));
}

TEST_F(CaseStepTest, AFormerStepInTheHandleIsReplacedAndNotReleased)
{
    Create("HLXRiksStepLT", "One");
    const VEXISpecObject_var first = VEXShare<VEXBaseUnknown>(step);
    EXPECT_EQ(Create("HLXFrequencyStepLT", "Two"), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Step(), "HLXFrequencyStepLT: Two");
    EXPECT_EQ(References(*first.Get()), 2U);
    first->Release();
}

TEST_F(CaseStepTest, OnlyTheFirstCaseOfTheListIsTaken)
{
    testCase._AnalysisCases.RemoveAll();
    testCase._AnalysisCases.Append(Case(2));
    testCase._AnalysisCases.Append(Case(1));
    EXPECT_EQ(Create("HLXRiksStepLT", "Step"), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(StepsOf(Case(1)), Lines{});
    EXPECT_EQ(StepsOf(Case(2)), (Lines{"HLXRiksStepLT: Step"}));
}

TEST_F(CaseStepTest, TheListOfTheDocumentsCasesServes)
{
    testCase._AnalysisCases.RemoveAll();
    testCase._Document = analysis.Get();
    ASSERT_EQ(testCase.InitializeAnalysisCaseFromDocument(), S_OK);
    EXPECT_EQ(Create("HLXRiksStepLT", "Step"), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(StepsOf(Case(1)), (Lines{"HLXRiksStepLT: Step"}));
}

TEST_F(CaseStepTest, ADocumentIsNotNeeded)
{
    ASSERT_EQ(testCase._Document, nullptr);
    EXPECT_EQ(Create("HLXRiksStepLT", "Step"), (Outcome{S_OK, "", ""}));
}

TEST_F(CaseStepTest, ANameMayBeEmptyOrAnyText)
{
    for (const char* const name : {"", "two words", "\xC3\xA4\xE2\x82\xAC", "%s%n", "a\nb"}) {
        EXPECT_EQ(Create("HLXRiksStepLT", name), (Outcome{S_OK, "", ""})) << name;
        EXPECT_EQ(AliasOf(TakeStep()), name);
    }
}

TEST_F(CaseStepTest, ANameThatIsRefusedIsNoFailure)
{
    const VEXIAlias_var other = AddStep(2, "HLXRiksStepLT", "Other");
    const std::string complaint =
        StandardErrorOf([&] { EXPECT_EQ(other->SetAlias("\xFF"), E_INVALIDARG); });
    EXPECT_EQ(Create("HLXRiksStepLT", "\xFF"), (Outcome{S_OK, "", complaint}));
    EXPECT_EQ(Step(), "HLXRiksStepLT: ");
}

// --- The way there -------------------------------------------------------------------------------

TEST_F(CaseStepTest, IsMadeStepByStep)
{
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen("HLXRiksStepLT", "Up"); }),
              (Lines{
                  instantiation,
                  "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisCase(&)",
                  "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisScan(&)",
                  "VEXISamAnalysisScan::GetChildren(\"HLXHacSimHistLT\", &, 3)",
                  "cast:HLXHacSimHistLT->VEXISamAnalysisScan(&)",
                  "HLXIAnalysisStepFact::CreateStep(HLXHacSimHistLT, HLXHacAnalysisCaseLT, &, "
                  "\"HLXRiksStepLT\")",
                  "cast:HLXRiksStepLT->VEXIAlias(&)",
                  "VEXIAlias::SetAlias(\"Up\")",
              }));
}

TEST_F(CaseStepTest, TheFirstOfTwoHistoriesIsTheParent)
{
    Add(Case(1), "HLXHacSimHistLT", "Second");
    EXPECT_EQ(Create("HLXRiksStepLT", "Step"), (Outcome{S_OK, "", ""}));
    const VEXISpecObject_var made = TakeStep();
    EXPECT_EQ(AliasOf(made->GetFather()), "");
    EXPECT_EQ(TypeOf(made->GetFather()), "HLXHacSimHistLT");
}

TEST_F(CaseStepTest, OnlyTheStepIsHeldAndTheFactoryIsNotReleased)
{
    const unsigned long before = FactoryReferences<HLXIAnalysisStepFact>(factoryName);
    EXPECT_EQ(HeldAfter("", [&] { return CreateUnseen("HLXRiksStepLT", "Step"); }),
              (HeldCounts{{"HLXRiksStepLT", 1}}));
    EXPECT_EQ(References(*step), 1U);
    EXPECT_EQ(FactoryReferences<HLXIAnalysisStepFact>(factoryName), before + 1);
    TakeStep();
    CreateUnseen("HLXRiksStepLT", "Step");
    EXPECT_EQ(FactoryReferences<HLXIAnalysisStepFact>(factoryName), before + 2);
}

}  // namespace
}  // namespace hlxtest::statics
