// SPDX-License-Identifier: Apache-2.0
// One job for an analysis case, made without a test case.
#include "library/setup/Jobs.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using namespace jobcalls;

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::CreateJob),
                             HRESULT (*)(VEXDocument*, VEXISamAnalysisCase_var&, HLXIJob_var&)>);

// --- What is made --------------------------------------------------------------------------------

TEST_F(JobTest, IsMadeForTheCaseWithoutANameAndWithoutAWord)
{
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(TypeOf(job), "HLXJobLT");
    EXPECT_EQ(JobsOf(Case(1)), (Lines{jobOfTheCase}));
    EXPECT_EQ(JobsOf(Case(2)), Lines{});
    EXPECT_TRUE(VEXISpecObject_var(job)->GetFather() == Below(Case(1), "HLXJobContainerLT")[1]);
}

TEST_F(JobTest, IsMadeInTheContainerOfItsCase)
{
    analysisCase = Case(2);
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(JobsOf(Case(1)), Lines{});
    EXPECT_EQ(JobsOf(Case(2)), (Lines{", each part of Analysis Case.2"}));
}

TEST_F(JobTest, IsMadeInTheFirstOfTwoContainers)
{
    Add(Case(1), "HLXJobContainerLT");
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    const VEXListValVEXBaseUnknown_var containers = Below(Case(1), "HLXJobContainerLT");
    ASSERT_EQ(containers.Size(), 2);
    EXPECT_EQ(Below(containers[1], "HLXJobLT").Size(), 1);
    EXPECT_EQ(Below(containers[2], "HLXJobLT").Size(), 0);
}

TEST_F(JobTest, IsMadeStepByStep)
{
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen(); }),
              (Lines{toScan, search, toFactory, creation, toFeature, setting}));
}

TEST_F(JobTest, IsAllThatIsHeld)
{
    EXPECT_EQ(HeldAfter("", [&] { return CreateUnseen(); }), (HeldCounts{{"HLXJobLT", 1}}));
    EXPECT_EQ(References(*job.Get()), 1U);
    EXPECT_EQ(References(*analysisCase.Get()), 1U);
}

TEST_F(JobTest, AFormerOneInTheHandleIsReplaced)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    const HLXIJob_var former = job;
    ASSERT_EQ(VEXIAlias_var(former)->SetAlias("Former"), S_OK);
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_FALSE(job == former);
    EXPECT_EQ(References(*former.Get()), 1U);
    EXPECT_EQ(JobsOf(Case(1)), (Lines{std::string("Former") + jobOfTheCase, jobOfTheCase}));
}

TEST_F(JobTest, TheCaseInTheHandleStays)
{
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(analysisCase == Case(1));
}

// --- Nothing to make it in -----------------------------------------------------------------------

TEST_F(JobTest, AnEmptyCaseHasNoContainerAndThePlatformIsNotAsked)
{
    analysisCase.Reset();
    EXPECT_EQ(Create(), (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen(); }), Lines{});
    EXPECT_FALSE(job);
}

TEST_F(JobTest, ACaseWithoutAContainerFails)
{
    analysisCase = BareCase();
    EXPECT_EQ(Create(), (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen(); }), (Lines{toScan, search}));
    EXPECT_FALSE(job);
}

TEST_F(JobTest, AContainerThreeLevelsBelowServesAndOneFourLevelsBelowDoesNot)
{
    const VEXISpecObject_var bare = BareCase();
    analysisCase = bare;
    const VEXISpecObject_var second = Add(Add(bare, "HLXClamp"), "HLXClamp");
    const VEXISpecObject_var tooDeep = Add(Add(second, "HLXClamp"), "HLXJobContainerLT");
    EXPECT_EQ(Create(), (Outcome{E_FAIL, "", ""}));
    const VEXISpecObject_var deep = Add(second, "HLXJobContainerLT");
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Below(deep, "HLXJobLT").Size(), 1);
    EXPECT_EQ(Below(tooDeep, "HLXJobLT").Size(), 0);
}

TEST_F(JobTest, ADocumentThatIsNoneOrAnotherMakesNoJob)
{
    AnalysisDocument other{0};
    for (VEXDocument* const wrong :
         {static_cast<VEXDocument*>(nullptr), New("VEXPart"), other.Get()}) {
        document = wrong;
        EXPECT_EQ(Create().result, E_FAIL);
        EXPECT_EQ(Create().out, "");
        EXPECT_FALSE(job);
    }
    EXPECT_EQ(JobsOf(Case(1)), Lines{});
}

TEST_F(JobTest, ACaseWhoseDocumentIsGoneFails)
{
    ASSERT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
    document = nullptr;
    const Outcome outcome = Create();
    EXPECT_EQ(outcome.result, E_FAIL);
    EXPECT_EQ(outcome.out, "");
    EXPECT_FALSE(job);
}

}  // namespace
}  // namespace hlxtest::statics
