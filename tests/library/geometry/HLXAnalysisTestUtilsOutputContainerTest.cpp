// SPDX-License-Identifier: Apache-2.0
// Containers of output requests, made when they are first asked for, without a test case.
#include "library/geometry/StaticContainer.h"

namespace hlxtest::statics {
namespace {

struct Output
{
    const char* name;
    const char* lateType;
    const char* creation;
    const char* other;

    friend void PrintTo(const Output& output, std::ostream* stream) { *stream << output.name; }
};

class StaticOutputContainerTest : public StaticContainerTest,
                                  public testing::WithParamInterface<Output>
{
protected:
    int Made() const { return Below(step, GetParam().lateType).Size(); }
    std::string Creation(const char* outcome) const
    {
        return std::string(GetParam().creation) + outcome;
    }
};

TEST_P(StaticOutputContainerTest, IsMadeOnceAndThenFound)
{
    ASSERT_EQ(Made(), 0);
    EXPECT_EQ(Find(GetParam().lateType), (Outcome{S_OK, "", ""}));
    ASSERT_EQ(Made(), 1);
    const VEXBaseUnknown_var made = Below(step, GetParam().lateType)[1];
    EXPECT_TRUE(container == made);
    EXPECT_EQ(Below(step, GetParam().other).Size(), 0);

    container = former;
    EXPECT_EQ(Find(GetParam().lateType), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == made);
    EXPECT_EQ(Made(), 1);
}

TEST_P(StaticOutputContainerTest, IsSoughtMadeAndSoughtAgain)
{
    const std::string search =
        std::string("VEXISamAnalysisScan::GetChildren(\"") + GetParam().lateType + "\", &, 3)";
    EXPECT_EQ(CallsOfFind(GetParam().lateType),
              (std::vector<std::string>{search,
                                        "cast:HLXGeneralStaticStepLT->HLXIContainerFactoryStep(&)",
                                        Creation("()"), search}));
    EXPECT_EQ(CallsOfFind(GetParam().lateType), std::vector<std::string>{search});
}

TEST_P(StaticOutputContainerTest, IsTheOnlyThingHeld)
{
    EXPECT_EQ(HeldAfter([&] { Find(GetParam().lateType); }),
              (HeldCounts{{GetParam().lateType, 1}}));
    EXPECT_EQ(References(*container.Get()), 1U);
    EXPECT_EQ(References(*step.Get()), 1U);
    EXPECT_EQ(HeldAfter("",
                        [&] {
                            VEXBaseUnknown_var found;
                            HLXAnalysisTestUtils::GetFeatContainer(GetParam().lateType, step,
                                                                   found);
                        }),
              HeldCounts{});
}

TEST_P(StaticOutputContainerTest, ThreeLevelsBelowIsFoundAndNoneIsMade)
{
    const VEXISpecObject_var deep =
        Add(Add(Add(step, "HLXClamp"), "HLXClamp"), GetParam().lateType);
    EXPECT_EQ(Find(GetParam().lateType), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == deep);
    EXPECT_EQ(Made(), 1);
}

TEST_P(StaticOutputContainerTest, FourLevelsBelowIsNotFoundAndAnotherIsMade)
{
    const VEXISpecObject_var deep =
        Add(Add(Add(Add(step, "HLXClamp"), "HLXClamp"), "HLXClamp"), GetParam().lateType);
    EXPECT_EQ(Find(GetParam().lateType), (Outcome{S_OK, "", ""}));
    EXPECT_FALSE(container == deep);
    EXPECT_EQ(Made(), 2);
    EXPECT_EQ(VEXISpecObject_var(container)->GetType(), VEXUnicodeString(GetParam().lateType));
}

TEST_P(StaticOutputContainerTest, FailuresOfTheFactoryQueryAreAnsweredAndNothingIsMade)
{
    const std::string query = "cast:HLXGeneralStaticStepLT->HLXIContainerFactoryStep=";
    EXPECT_EQ(Find(GetParam().lateType, query + "E_NOINTERFACE"), (Outcome{E_NOINTERFACE, "", ""}));
    EXPECT_EQ(Find(GetParam().lateType, query + "E_ACCESSDENIED"),
              (Outcome{E_ACCESSDENIED, "", ""}));
    EXPECT_EQ(Find(GetParam().lateType, query + "null"), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == former);
    EXPECT_EQ(Made(), 0);
}

TEST_P(StaticOutputContainerTest, AFactoryGivenAlongWithAFailureIsNotTaken)
{
    EXPECT_EQ(Find(GetParam().lateType,
                   "cast:HLXGeneralStaticStepLT->HLXIContainerFactoryStep=E_UNEXPECTED,keep"),
              (Outcome{E_UNEXPECTED, "", ""}));
    EXPECT_TRUE(container == former);
    EXPECT_EQ(Made(), 0);
    step->Release();
}

TEST_P(StaticOutputContainerTest, OtherResultsAreNotLookedAt)
{
    EXPECT_EQ(Find(GetParam().lateType, Creation("=E_ACCESSDENIED")), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == former);
    EXPECT_EQ(Made(), 0);
    EXPECT_EQ(Find(GetParam().lateType, "VEXISamAnalysisScan::GetChildren#2=E_ACCESSDENIED"),
              (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == former);
    ASSERT_EQ(Made(), 1);
    EXPECT_EQ(Find(GetParam().lateType, "VEXISamAnalysisScan::GetChildren#1=E_ACCESSDENIED"),
              (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == Below(step, GetParam().lateType)[1]);
    EXPECT_EQ(Made(), 1);
}

TEST_P(StaticOutputContainerTest, WhatIsMadeOrFoundAlongWithAFailureIsTaken)
{
    EXPECT_EQ(Find(GetParam().lateType, Creation("=E_UNEXPECTED,keep") +
                                            ";VEXISamAnalysisScan::GetChildren=E_UNEXPECTED,keep"),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Made(), 1);
    EXPECT_TRUE(container == Below(step, GetParam().lateType)[1]);
}

TEST_P(StaticOutputContainerTest, AFactoryQueriedWithAPositiveResultIsUsed)
{
    EXPECT_EQ(Find(GetParam().lateType,
                   "cast:HLXGeneralStaticStepLT->HLXIContainerFactoryStep=S_FALSE,keep"),
              (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == Below(step, GetParam().lateType)[1]);
}

INSTANTIATE_TEST_SUITE_P(
    Of, StaticOutputContainerTest,
    testing::Values(Output{"History", historyType,
                           "HLXIContainerFactoryStep::CreateHistoryOutputRequestContainer",
                           fieldType},
                    Output{"Field", fieldType,
                           "HLXIContainerFactoryStep::CreateFieldOutputRequestContainer",
                           historyType}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace hlxtest::statics
