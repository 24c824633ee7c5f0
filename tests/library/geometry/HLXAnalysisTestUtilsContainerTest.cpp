// SPDX-License-Identifier: Apache-2.0
// Containers of a step, found without a test case.
#include "library/geometry/StaticContainer.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(
    std::is_same_v<decltype(&Utils::GetFeatContainer),
                   HRESULT (*)(VEXUnicodeString, VEXISpecObject_var, VEXBaseUnknown_var&)>);

// --- Containers that are there -------------------------------------------------------------------

TEST_F(StaticContainerTest, OneThatIsThereIsFoundByASearchThreeLevelsDeep)
{
    EXPECT_EQ(Find("HLXInteractionContainerLT"), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == Below(step, "HLXInteractionContainerLT")[1]);
    EXPECT_EQ(CallsOfFind("HLXInteractionContainerLT"),
              (std::vector<std::string>{
                  "VEXISamAnalysisScan::GetChildren(\"HLXInteractionContainerLT\", &, 3)"}));
}

TEST_F(StaticContainerTest, OfEachKindThatStepsHaveTheirOwnIsFound)
{
    const VEXISpecObject_var other = AddStep(1, "HLXGeneralStaticStepLT", "Other");
    for (const char* const type : {"HLXLoadContainerLT", "HLXBoundaryConditionContainerLT",
                                   "HLXInteractionContainerLT", "HLXTemperatureContainerLT"}) {
        EXPECT_EQ(Find(type), (Outcome{S_OK, "", ""}));
        EXPECT_TRUE(container == Below(step, type)[1]) << type;
        EXPECT_FALSE(container == Below(other, type)[1]) << type;
    }
}

TEST_F(StaticContainerTest, OneThreeLevelsBelowIsFoundAndOneFourLevelsBelowIsNot)
{
    const VEXISpecObject_var first = Add(step, "HLXClamp");
    const VEXISpecObject_var second = Add(first, "HLXClamp");
    const VEXISpecObject_var third = Add(second, "HLXClamp");
    const VEXISpecObject_var tooDeep = Add(third, "HLXMassScalingContainerLT");
    EXPECT_EQ(Find("HLXMassScalingContainerLT"), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == former);
    const VEXISpecObject_var deep = Add(second, "HLXMassScalingContainerLT");
    EXPECT_EQ(Find("HLXMassScalingContainerLT"), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == deep);
}

TEST_F(StaticContainerTest, TheNearestIsFoundThenTheFirst)
{
    Add(Add(step, "HLXClamp"), "HLXMassScalingContainerLT");
    const VEXISpecObject_var near = Add(step, "HLXMassScalingContainerLT");
    Add(step, "HLXMassScalingContainerLT");
    EXPECT_EQ(Find("HLXMassScalingContainerLT"), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == near);
}

TEST_F(StaticContainerTest, OneThatIsGivenAlongWithAFailureIsTaken)
{
    EXPECT_EQ(Find("HLXLoadContainerLT", "VEXISamAnalysisScan::GetChildren=E_UNEXPECTED,keep"),
              (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == Below(step, "HLXLoadContainerLT")[1]);
}

// --- Nothing to find or make ---------------------------------------------------------------------

TEST_F(StaticContainerTest, OtherKindsAreSoughtTwiceAndNotMade)
{
    for (const char* const type :
         {"HLXDatOutputRequestContainerLT", "HLXMassScalingContainerLT", "NoSuchLT",
          "HLXHistoryOutputRequestContainer", "HLXFieldOutputRequestContainerLT "}) {
        const int before = Below(step, "").Size();
        EXPECT_EQ(Find(type), (Outcome{S_OK, "", ""})) << type;
        EXPECT_TRUE(container == former) << type;
        EXPECT_EQ(Below(step, "").Size(), before) << type;
        const std::string search =
            std::string("VEXISamAnalysisScan::GetChildren(\"") + type + "\", &, 3)";
        EXPECT_EQ(CallsOfFind(type),
                  (std::vector<std::string>{
                      search, "cast:HLXGeneralStaticStepLT->HLXIContainerFactoryStep(&)", search}));
    }
}

TEST_F(StaticContainerTest, AnEmptyStepGivesNothingAndThePlatformIsNotAsked)
{
    const VEXISpecObject_var empty;
    std::vector<std::string> calls;
    EXPECT_EQ(OutcomeOf([&]() -> long {
                  long result = E_UNEXPECTED;
                  calls = CallsOf(
                      [&] { result = Utils::GetFeatContainer(historyType, empty, container); });
                  return result;
              }),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(calls, std::vector<std::string>{});
    EXPECT_TRUE(container == former);
}

TEST_F(StaticContainerTest, AnObjectThatMakesNoContainersAnswersItsQuery)
{
    VEXListValVEXBaseUnknown_var cases;
    ASSERT_EQ(HLXAnalysisDocUtils::GetAllAnalysisCases(cases, analysis.Get()), S_OK);
    EXPECT_EQ(OutcomeOf([&] { return Utils::GetFeatContainer(historyType, cases[1], container); }),
              (Outcome{E_NOINTERFACE, "", ""}));
    EXPECT_TRUE(container == former);
}

TEST_F(StaticContainerTest, AStepThatCannotBeSearchedStillMakesItsContainer)
{
    EXPECT_EQ(Find(fieldType, "cast:HLXGeneralStaticStepLT->VEXISamAnalysisScan=E_NOINTERFACE"),
              (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == former);
    EXPECT_EQ(Below(step, fieldType).Size(), 1);
}

TEST_F(StaticContainerTest, AStepThatIsGoneGivesAndMakesNothing)
{
    ASSERT_EQ(VEXDocumentServices::Remove(*analysis.Release(), 1), S_OK);
    EXPECT_EQ(Find(fieldType), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Find("HLXLoadContainerLT"), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(container == former);
}

}  // namespace
}  // namespace hlxtest::statics
