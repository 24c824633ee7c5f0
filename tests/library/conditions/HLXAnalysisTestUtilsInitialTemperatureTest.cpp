// SPDX-License-Identifier: Apache-2.0
// Creating an initial temperature: the order of calls, the step that it finds, and every exit.
#include "library/conditions/TemperatureCreation.h"
#include "library/conditions/TemperatureExits.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::CreateInitialTemperature),
                             HRESULT (*)(VEXDocument*, VEXUnicodeString&, VEXISpecObject_var&)>);

constexpr const TemperatureKind& kKind = kInitialTemperature;

class InitialTemperatureTest : public TemperatureCreationTest
{
protected:
    TemperatureArguments arguments = Arguments();
};

const std::string kFactory =
    "VEXInstantiateComponent(\"HLXTemperatureFact\", HLXITemperatureFact, &)";
const std::string kStep =
    "HLXAnalysisDocUtils::ValidateStep(&, \"HLXHacFieldContainerLT\", &, 1, VEXAnalysisDocument)";

TEST_F(InitialTemperatureTest, IsMadeInTheStepThatIsFoundAndNamedAndPutOnTheBody)
{
    EXPECT_EQ(CallsOfCreation(kKind),
              WithNameAndBody({
                  kFactory,
                  kStep,
                  "HLXITemperatureFact::CreateTemperature(&, \"HLXInitialTemperatureLT\", "
                  "VEXAnalysisDocument, HLXHacInitialStepLT)",
              }));
}

TEST_F(InitialTemperatureTest, IsTakenForItsSupportsOnceItHasItsName)
{
    EXPECT_EQ(CallsOf([&] { kKind.create(arguments); },
                      {"VEXIAlias::", "cast:HLXInitialTemperatureLT->VEXISamAnalysisSupport",
                       "VEXISamDocumentManager::"}),
              (std::vector<std::string>{
                  "VEXIAlias::SetAlias(\"Name\")",
                  "cast:HLXInitialTemperatureLT->VEXISamAnalysisSupport(&)",
                  "VEXISamDocumentManager::GetLinkedDocuments(&)",
              }));
}

TEST_F(InitialTemperatureTest, IsPutIntoTheInitialStepAndGivenWithoutAWord)
{
    ExpectExit(kKind, {"", "", S_OK, "", kKind.Whole(), 0});
}

TEST_F(InitialTemperatureTest, StandsAmongTheFieldsOfTheStep)
{
    ASSERT_EQ(Create(kKind, arguments), (Outcome{S_OK, "", ""}));
    const VEXISpecObject_var initial = Below(Model(), "HLXHacInitialStepLT")[1];
    EXPECT_TRUE(arguments.temperature->GetFather() == Below(initial, "HLXHacFieldContainerLT")[1]);
    EXPECT_EQ(Below(step, "HLXInitialTemperatureLT").Size(), 0);
}

TEST_F(InitialTemperatureTest, ASecondOneLeavesTheFirstAlone)
{
    ExpectSecondLeavesFirstAlone(kKind);
}

TEST_F(InitialTemperatureTest, LeavesWhatTheHandleHeldAlone)
{
    ExpectFormerLeftAlone(kKind);
}

TEST_F(InitialTemperatureTest, NamesAreTakenAsTheyAre)
{
    ExpectNamesTakenAsTheyAre(kKind);
}

TEST_F(InitialTemperatureTest, ANameThatThePlatformRefusesIsNoFailure)
{
    ExpectRefusedNameToBeNoFailure(kKind);
}

// --- The step -----------------------------------------------------------------------------------

TEST_F(InitialTemperatureTest, TheStepIsLookedForWhateverCameOfTheFactory)
{
    for (const char* const outcome : {"E_FAIL", "E_UNEXPECTED,keep", "null", "S_FALSE"}) {
        EXPECT_EQ(CallsOfCreation(kKind, std::string("VEXInstantiateComponent=") + outcome),
                  (std::vector{kFactory, kStep}))
            << outcome;
    }
}

TEST_F(InitialTemperatureTest, TheStepIsLetGoOf)
{
    const VEXISpecObject_var initial = Below(Model(), "HLXHacInitialStepLT")[1];
    for (const char* const faults :
         {"", "VEXInstantiateComponent=E_FAIL", "HLXITemperatureFact::CreateTemperature=E_FAIL",
          "HLXAnalysisDocUtils::ValidateStep=E_UNEXPECTED,keep",
          "VEXISamAnalysisSupport::AddSupport=E_FAIL"}) {
        const unsigned long before = References(*initial.Get());
        Create(kKind, arguments, faults);
        EXPECT_EQ(References(*initial.Get()), before) << faults;
    }
}

TEST_F(InitialTemperatureTest, TheFactoryIsAskedWithoutAStepToo)
{
    const std::vector<std::string> calls =
        CallsOfCreation(kKind, "HLXAnalysisDocUtils::ValidateStep=null");
    ASSERT_EQ(calls.size(), 3U);
    EXPECT_EQ(calls[2],
              "HLXITemperatureFact::CreateTemperature(&, \"HLXInitialTemperatureLT\", "
              "VEXAnalysisDocument, null)");
}

class InitialTemperatureExitTest : public InitialTemperatureTest,
                                   public testing::WithParamInterface<TemperatureExit>
{};

TEST_P(InitialTemperatureExitTest, AnswersAndLeavesWhatWasMade)
{
    ExpectExit(kKind, GetParam());
}

/// The factory refuses to make anything without a step, and leaves the handle as it is.
TemperatureExit WithoutStep(const char* name, const char* faults)
{
    return {name, faults, E_FAIL, kKind.notCreated, "", 0, TemperatureHandle::Former};
}

INSTANTIATE_TEST_SUITE_P(
    Step, InitialTemperatureExitTest,
    testing::Values(
        WithoutStep("Denied", "HLXAnalysisDocUtils::ValidateStep=E_ACCESSDENIED"),
        WithoutStep("Empty", "HLXAnalysisDocUtils::ValidateStep=null"),
        WithoutStep("EmptyWithAPositiveResult", "HLXAnalysisDocUtils::ValidateStep=S_FALSE"),
        temperature_exits::Success(kKind, "AlongWithAFailure",
                                   "HLXAnalysisDocUtils::ValidateStep=E_UNEXPECTED,keep"),
        temperature_exits::Success(kKind, "WithAPositiveResult",
                                   "HLXAnalysisDocUtils::ValidateStep=S_FALSE,keep")),
    NameOfTemperatureExit);

INSTANTIATE_TEST_SUITE_P(Creation, InitialTemperatureExitTest,
                         testing::ValuesIn(CreationExits(kKind)), NameOfTemperatureExit);
INSTANTIATE_TEST_SUITE_P(Name, InitialTemperatureExitTest, testing::ValuesIn(NameExits(kKind)),
                         NameOfTemperatureExit);
INSTANTIATE_TEST_SUITE_P(Part, InitialTemperatureExitTest, testing::ValuesIn(PartExits(kKind)),
                         NameOfTemperatureExit);
INSTANTIATE_TEST_SUITE_P(Body, InitialTemperatureExitTest, testing::ValuesIn(BodyExits(kKind)),
                         NameOfTemperatureExit);
INSTANTIATE_TEST_SUITE_P(Support, InitialTemperatureExitTest,
                         testing::ValuesIn(SupportExits(kKind)), NameOfTemperatureExit);

}  // namespace
}  // namespace hlxtest::statics
