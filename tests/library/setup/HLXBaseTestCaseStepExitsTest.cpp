// SPDX-License-Identifier: Apache-2.0
// One step of a test case where something on the way fails or is missing.
#include "library/setup/CaseSteps.h"

namespace hlxtest::statics {
namespace {

// --- Before the factory makes it -----------------------------------------------------------------

/// A test case that cannot ask the factory for a step.
class CaseStepBeforeTest : public CaseStepTest
{
protected:
    CaseStepBeforeTest()
    {
        CreateUnseen("HLXFrequencyStepLT", "Former");
        former = step;
    }

    /// Whether nothing was made, told or given, and what was asked is `calls`.
    void ExpectRefused(const Lines& calls, std::string_view faults = "")
    {
        EXPECT_EQ(Create("HLXRiksStepLT", "Step", faults), (Outcome{E_FAIL, "", ""}));
        EXPECT_EQ(step, former);
        EXPECT_EQ(QuietCallsOf([&] { CreateUnseen("HLXRiksStepLT", "Step"); }, {}, faults), calls);
        EXPECT_EQ(step, former);
        EXPECT_EQ(StepsOf(Case(1)), (Lines{"HLXFrequencyStepLT: Former"}));
        EXPECT_EQ(StepsOf(Case(2)), Lines{});
    }

    VEXISamAnalysisSet* former = nullptr;
};

TEST_F(CaseStepBeforeTest, WithoutCasesTheFactoryIsFoundAndNotAsked)
{
    testCase._AnalysisCases.RemoveAll();
    ExpectRefused({instantiation});
}

TEST_F(CaseStepBeforeTest, WithAnEmptyHandleForTheFirstCaseTheFactoryIsNotAsked)
{
    testCase._AnalysisCases.RemoveAll();
    testCase._AnalysisCases.Append(VEXBaseUnknown_var());
    testCase._AnalysisCases.Append(Case(2));
    ExpectRefused({instantiation});
}

TEST_F(CaseStepBeforeTest, WithAFirstEntryThatIsNoCaseTheFactoryIsNotAsked)
{
    testCase._AnalysisCases.RemoveAll();
    testCase._AnalysisCases.Append(Model());
    testCase._AnalysisCases.Append(Case(2));
    ExpectRefused({instantiation, "cast:VEXSamAnalysisModel->VEXISamAnalysisCase(&)"});
}

TEST_F(CaseStepBeforeTest, ACaseThatIsRefusedIsTheEnd)
{
    for (const char* const outcome : {"E_NOINTERFACE", "null"}) {
        ExpectRefused({instantiation, "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisCase(&)"},
                      std::string("cast:HLXHacAnalysisCaseLT->VEXISamAnalysisCase=") + outcome);
    }
}

class CaseStepFactoryTest : public CaseStepBeforeTest,
                            public testing::WithParamInterface<const char*>
{};

TEST_P(CaseStepFactoryTest, NotHadIsTheEnd)
{
    ExpectRefused({instantiation}, std::string("VEXInstantiateComponent=") + GetParam());
    testCase._AnalysisCases.RemoveAll();
    ExpectRefused({instantiation}, std::string("VEXInstantiateComponent=") + GetParam());
}

INSTANTIATE_TEST_SUITE_P(Of, CaseStepFactoryTest,
                         testing::Values("E_FAIL", "E_ACCESSDENIED", "-1", "null", "1",
                                         "E_ACCESSDENIED,keep"),
                         [](const auto& row) { return "Outcome" + std::to_string(row.index); });

TEST_F(CaseStepTest, AFactoryGivenWithAPositiveResultIsUsed)
{
    EXPECT_EQ(Create("HLXRiksStepLT", "Step", "VEXInstantiateComponent=S_FALSE,keep"),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Step(), "HLXRiksStepLT: Step");
}

// --- The simulation history ----------------------------------------------------------------------

struct History
{
    const char* name;
    const char* faults;
    const char* parent;  ///< what the factory is given

    friend void PrintTo(const History& row, std::ostream* stream) { *stream << row.faults; }
};

class CaseStepHistoryTest : public CaseStepTest, public testing::WithParamInterface<History>
{};

TEST_P(CaseStepHistoryTest, IsNotNeeded)
{
    EXPECT_EQ(Create("HLXRiksStepLT", "Step", GetParam().faults), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Step(), "HLXRiksStepLT: Step");
    TakeStep();
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen("HLXRiksStepLT", "Step"); },
                           {"HLXIAnalysisStepFact::"}, GetParam().faults),
              (Lines{std::string("HLXIAnalysisStepFact::CreateStep(") + GetParam().parent +
                     ", HLXHacAnalysisCaseLT, &, \"HLXRiksStepLT\")"}));
    TakeStep();
    EXPECT_EQ(HeldAfter(GetParam().faults, [&] { return CreateUnseen("HLXRiksStepLT", "Step"); }),
              (HeldCounts{{"HLXRiksStepLT", 1}}));
}

INSTANTIATE_TEST_SUITE_P(
    Of, CaseStepHistoryTest,
    testing::Values(
        History{"NoSearch", "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisScan=E_NOINTERFACE", "null"},
        History{"EmptySearch", "cast:HLXHacAnalysisCaseLT->VEXISamAnalysisScan=null", "null"},
        History{"FailingSearch", "VEXISamAnalysisScan::GetChildren=E_FAIL", "null"},
        History{"FailingSearchThoughGiven", "VEXISamAnalysisScan::GetChildren=E_ACCESSDENIED,keep",
                "null"},
        History{"NothingFound", "VEXISamAnalysisScan::GetChildren=empty", "null"},
        History{"FoundWithAPositiveResult", "VEXISamAnalysisScan::GetChildren=S_FALSE,keep",
                "HLXHacSimHistLT"},
        History{"FoundIsNoParent", "cast:HLXHacSimHistLT->VEXISamAnalysisScan=E_NOINTERFACE",
                "null"},
        History{"FoundIsAnEmptyParent", "cast:HLXHacSimHistLT->VEXISamAnalysisScan=null", "null"}),
    [](const auto& row) { return std::string(row.param.name); });

// --- What the factory answers --------------------------------------------------------------------

struct Answer
{
    const char* name;
    const char* outcome;  ///< of the factory's operation
    long result;
    bool isGiven;
    bool isNamed;

    friend void PrintTo(const Answer& row, std::ostream* stream) { *stream << row.outcome; }
};

class CaseStepAnswerTest : public CaseStepTest, public testing::WithParamInterface<Answer>
{
protected:
    const std::string faults =
        std::string("HLXIAnalysisStepFact::CreateStep=") + GetParam().outcome;
};

TEST_P(CaseStepAnswerTest, IsPassedUpAndSuccessWithAStepNamesIt)
{
    EXPECT_EQ(Create("HLXRiksStepLT", "Step", faults), (Outcome{GetParam().result, "", ""}));
    EXPECT_EQ(step != nullptr, GetParam().isGiven);
    EXPECT_EQ(StepsOf(Case(1)), GetParam().isNamed   ? (Lines{"HLXRiksStepLT: Step"})
                                : GetParam().isGiven ? (Lines{"HLXRiksStepLT: "})
                                                     : Lines{});
}

TEST_P(CaseStepAnswerTest, IsFollowedByTheNameOrByNothing)
{
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen("HLXRiksStepLT", "Step"); },
                           {"VEXIAlias", "cast:HLXRiksStepLT->VEXIAlias"}, faults)
                  .size(),
              GetParam().isNamed ? 2U : 0U);
}

INSTANTIATE_TEST_SUITE_P(
    Of, CaseStepAnswerTest,
    testing::Values(Answer{"Fails", "E_ACCESSDENIED", E_ACCESSDENIED, false, false},
                    Answer{"FailsPlainly", "E_FAIL", E_FAIL, false, false},
                    Answer{"FailsThoughGiven", "E_UNEXPECTED,keep", E_UNEXPECTED, true, false},
                    Answer{"GivesNothing", "null", S_OK, false, false},
                    Answer{"GivesNothingWithSeven", "7", 7, false, false},
                    Answer{"GivesAStepWithSeven", "7,keep", 7, true, true}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(CaseStepTest, ThatCannotBeNamedIsNoFailure)
{
    for (const char* const faults :
         {"cast:HLXRiksStepLT->VEXIAlias=E_NOINTERFACE", "cast:HLXRiksStepLT->VEXIAlias=null",
          "VEXIAlias::SetAlias=E_FAIL", "VEXIAlias::SetAlias=-1"}) {
        EXPECT_EQ(Create("HLXRiksStepLT", "Step", faults), (Outcome{S_OK, "", ""})) << faults;
        EXPECT_EQ(Step(), "HLXRiksStepLT: ") << faults;
        TakeStep();
    }
}

TEST_F(CaseStepTest, OfATypeThatIsNoneIsRefusedByTheFactory)
{
    for (const char* const type :
         {"HLXHacInitialStepLT", "HLXStepLT", "HLXPressure", "NoSuchLT", ""}) {
        std::string told;
        EXPECT_EQ(
            QuietCallsOf(
                [&] {
                    told = StandardErrorOf([&] { EXPECT_EQ(CreateUnseen(type, "Step"), E_FAIL); });
                },
                {"VEXIAlias::"}),
            Lines{});
        EXPECT_NE(told, "") << type;
        EXPECT_EQ(step, nullptr) << type;
        EXPECT_EQ(Create(type, "Step"), (Outcome{E_FAIL, "", told}));
    }
    EXPECT_EQ(StepsOf(Case(1)), Lines{});
}

TEST_F(CaseStepTest, InACaseWithoutAHistoryIsRefusedByTheFactory)
{
    testCase._AnalysisCases.RemoveAll();
    testCase._AnalysisCases.Append(BareCase());
    EXPECT_EQ(QuietCallsOf([&] { EXPECT_EQ(CreateUnseen("HLXRiksStepLT", "Step"), E_FAIL); },
                           {"HLXIAnalysisStepFact::", "VEXIAlias::"}),
              (Lines{"HLXIAnalysisStepFact::CreateStep(null, HLXHacAnalysisCaseLT, &, "
                     "\"HLXRiksStepLT\")"}));
    EXPECT_EQ(step, nullptr);
}

TEST_F(CaseStepTest, InACaseWhoseDocumentIsGoneFails)
{
    ASSERT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
    const Outcome outcome = Create("HLXRiksStepLT", "Step");
    EXPECT_EQ(outcome.result, E_FAIL);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(step, nullptr);
}

}  // namespace
}  // namespace hlxtest::statics
