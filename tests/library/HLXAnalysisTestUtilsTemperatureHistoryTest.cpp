// SPDX-License-Identifier: Apache-2.0
// Creating a temperature history: the order of calls, what it is given as, and every exit.
#include "library/TemperatureExits.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::CreateTemperatureHistory),
                             HRESULT (*)(VEXDocument*, VEXUnicodeString&,
                                         VEXISamAnalysisEntity_var&, VEXISamAnalysisSet_var&)>);

constexpr const TemperatureKind& kKind = kTemperatureHistory;

class TemperatureHistoryTest : public TemperatureKindTest
{
protected:
    TemperatureArguments arguments = Arguments();
};

TEST_F(TemperatureHistoryTest, IsMadeAndNamedAndPutOnTheBody)
{
    EXPECT_EQ(CallsOfCreation(kKind),
              (std::vector<std::string>{
                  "VEXInstantiateComponent(\"HLXTemperatureFact\", HLXITemperatureFact, &)",
                  "HLXITemperatureFact::CreateTemperature(&, \"HLXTemperatureHistoryLT\", "
                  "VEXAnalysisDocument, HLXGeneralStaticStepLT)",
                  "VEXIAlias::SetAlias(\"Name\")",
                  "VEXISamDocumentManager::GetLinkedDocuments(&)",
                  "VEXIPrtContainer::GetMechanicalPart()",
                  "VEXIPartRequest::GetMainBody(\"MfDefault3DView\", &)",
                  "VEXISamAnalysisSupport::AddSupport(VEXMechanicalTool, VEXPart, "
                  "\"GeometrySmartConnector\")",
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
    arguments.name = "First";
    ASSERT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    arguments.name = "Second";
    ASSERT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(TemperatureTexts(), (std::vector{kKind.Whole("First"), kKind.Whole("Second")}));
    EXPECT_TRUE(arguments.history == Temperatures()[2]);
    EXPECT_EQ(References(*arguments.history.Get()), 1U);
}

TEST_F(TemperatureHistoryTest, LeavesWhatTheHandleHeldAlone)
{
    arguments.history = former;
    ASSERT_TRUE(arguments.history);
    const unsigned long before = References(*former.Get());
    ASSERT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(AliasOf(former), "Former");
    EXPECT_EQ(SupportsOf(former), std::vector<std::string>{});
    EXPECT_EQ(References(*former.Get()), before - 1);
}

TEST_F(TemperatureHistoryTest, NamesAreTakenAsTheyAre)
{
    for (const char* const name :
         {"", " blanks around ", "\xC3\xA4\xE2\x82\xAC", "100% \"of\"\n"}) {
        arguments.name = name;
        EXPECT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
        EXPECT_EQ(AliasOf(arguments.history), name);
        EXPECT_EQ(arguments.name, name);
    }
}

TEST_F(TemperatureHistoryTest, ANameThatThePlatformRefusesIsNoFailure)
{
    arguments.name = "\xFF";
    EXPECT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(AliasOf(arguments.history), "");
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
