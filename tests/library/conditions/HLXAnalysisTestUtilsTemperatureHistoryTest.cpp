// SPDX-License-Identifier: Apache-2.0
// Creating a temperature history: the order of calls, what it is given as, and every exit.
#include "library/conditions/TemperatureCreation.h"
#include "library/conditions/TemperatureExits.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::CreateTemperatureHistory),
                             HRESULT (*)(VEXDocument*, VEXUnicodeString&,
                                         VEXISamAnalysisEntity_var&, VEXISamAnalysisSet_var&)>);

constexpr const TemperatureKind& kKind = kTemperatureHistory;

class TemperatureHistoryTest : public TemperatureCreationTest
{
protected:
    TemperatureArguments arguments = Arguments();
};

TEST_F(TemperatureHistoryTest, IsMadeAndNamedAndPutOnTheBody)
{
    EXPECT_EQ(CallsOfCreation(kKind),
              WithNameAndBody({
                  "VEXInstantiateComponent(\"HLXTemperatureFact\", HLXITemperatureFact, &)",
                  "HLXITemperatureFact::CreateTemperature(&, \"HLXTemperatureHistoryLT\", "
                  "VEXAnalysisDocument, HLXGeneralStaticStepLT)",
              }));
}

TEST_F(TemperatureHistoryTest, IsTakenAsAnEntityThenNamedThenTakenForItsSupports)
{
    EXPECT_EQ(CallsOf([&] { kKind.create(arguments); },
                      {"VEXIAlias::", "cast:HLXTemperatureHistoryLT->VEXISam",
                       "VEXISamDocumentManager::"}),
              (std::vector<std::string>{
                  "cast:HLXTemperatureHistoryLT->VEXISamAnalysisEntity(&)",
                  "VEXIAlias::SetAlias(\"Name\")",
                  "cast:HLXTemperatureHistoryLT->VEXISamAnalysisSupport(&)",
                  "VEXISamDocumentManager::GetLinkedDocuments(&)",
              }));
}

TEST_F(TemperatureHistoryTest, IsPutIntoTheStepAndGivenWithoutAWord)
{
    ExpectExit(kKind, {"", "", S_OK, "", kKind.Whole(), 0});
}

TEST_F(TemperatureHistoryTest, StandsAmongTheTemperaturesOfTheStep)
{
    ASSERT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(VEXISpecObject_var(arguments.history)->GetFather() ==
                Below(step, "HLXTemperatureContainerLT")[1]);
}

TEST_F(TemperatureHistoryTest, HasNoData)
{
    ASSERT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    const HLXITemperatureHistory_var history = arguments.history;
    ASSERT_TRUE(history);
    double value = -1;
    EXPECT_EQ(history->GetUniformValue(value), S_OK);
    EXPECT_EQ(value, 0);
    EXPECT_EQ(history->GetBeginStep(), 1);
    EXPECT_EQ(history->GetStartIncrement(), 1);
    EXPECT_EQ(history->GetEndStep(), 1);
    EXPECT_EQ(history->GetEndIncrement(), 1);
    VEXISpecObject_var job = former;
    EXPECT_EQ(history->GetJob(job), S_OK);
    EXPECT_FALSE(job);
}

TEST_F(TemperatureHistoryTest, ASecondOneLeavesTheFirstAlone)
{
    ExpectSecondLeavesFirstAlone(kKind);
}

TEST_F(TemperatureHistoryTest, LeavesWhatTheHandleHeldAlone)
{
    ExpectFormerLeftAlone(kKind);
}

TEST_F(TemperatureHistoryTest, NamesAreTakenAsTheyAre)
{
    ExpectNamesTakenAsTheyAre(kKind);
}

TEST_F(TemperatureHistoryTest, ANameThatThePlatformRefusesIsNoFailure)
{
    ExpectRefusedNameToBeNoFailure(kKind);
}

// --- Exits --------------------------------------------------------------------------------------

class TemperatureHistoryExitTest : public TemperatureHistoryTest,
                                   public testing::WithParamInterface<TemperatureExit>
{};

TEST_P(TemperatureHistoryExitTest, AnswersAndLeavesWhatWasMade)
{
    ExpectExit(kKind, GetParam());
}

/// The history is made and supported all the same, but cannot be given.
TemperatureExit NotGiven(const char* name, const char* faults)
{
    return {name, faults, S_OK, "", kKind.Whole(), 0, TemperatureHandle::Empty};
}

INSTANTIATE_TEST_SUITE_P(
    Entity, TemperatureHistoryExitTest,
    testing::Values(NotGiven("No",
                             "cast:HLXTemperatureHistoryLT->VEXISamAnalysisEntity=E_NOINTERFACE"),
                    NotGiven("Empty", "cast:HLXTemperatureHistoryLT->VEXISamAnalysisEntity=null")),
    NameOfTemperatureExit);

INSTANTIATE_TEST_SUITE_P(Creation, TemperatureHistoryExitTest,
                         testing::ValuesIn(CreationExits(kKind)), NameOfTemperatureExit);
INSTANTIATE_TEST_SUITE_P(Name, TemperatureHistoryExitTest, testing::ValuesIn(NameExits(kKind)),
                         NameOfTemperatureExit);
INSTANTIATE_TEST_SUITE_P(Part, TemperatureHistoryExitTest, testing::ValuesIn(PartExits(kKind)),
                         NameOfTemperatureExit);
INSTANTIATE_TEST_SUITE_P(Body, TemperatureHistoryExitTest, testing::ValuesIn(BodyExits(kKind)),
                         NameOfTemperatureExit);
INSTANTIATE_TEST_SUITE_P(Support, TemperatureHistoryExitTest,
                         testing::ValuesIn(SupportExits(kKind)), NameOfTemperatureExit);

}  // namespace
}  // namespace hlxtest::statics
