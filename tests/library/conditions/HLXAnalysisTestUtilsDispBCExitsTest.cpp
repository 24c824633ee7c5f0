// SPDX-License-Identifier: Apache-2.0
// Exits that only the creation of a displacement has: its two parameters, its attributes, its
// interface.
#include "library/conditions/BoundaryConditionKinds.h"

namespace hlxtest::statics {
namespace {

const Outcome kSuccess{S_OK, "", ""};
const Outcome kSilent{E_FAIL, "", ""};
const Outcome kNoTranslation{E_FAIL, "Failed to get Tranlation Component\n", ""};
const Outcome kNoRotation{E_FAIL, "Failed to get Rotation Component\n", ""};
const Outcome kNoAttributes{E_NOINTERFACE, "", ""};
const std::string kWhole = kDisplacement.Whole();
const std::string kOnFace = kWhole.substr(kDisplacement.ready.size());
const std::string kCreated = kDisplacement.created;
const std::string kValued = "HLXDisplacementBC: 1.5 0 3.5 0 -0.5 0, 000000";

class DispBCExitTest : public BoundaryConditionTest,
                       public testing::WithParamInterface<ConditionExit>
{};

TEST_P(DispBCExitTest, AnswersAndPrintsAndLeavesTheCondition)
{
    ExpectExit(kDisplacement, GetParam());
}

// --- Parameters ---------------------------------------------------------------------------------

constexpr const char* kFind = "VEXISamAnalysisEntity::GetVectorParameter";

std::vector<ConditionExit> ParameterExits(const std::string& call, const Outcome& missing)
{
    const std::string find = kFind + call;
    return {
        {"Fails", find + "=E_FAIL", missing, kCreated},
        {"IsDenied", find + "=E_ACCESSDENIED", missing, kCreated},
        {"IsNull", find + "=null", missing, kCreated},
        {"IsNullWithAPositiveResult", find + "=S_FALSE", missing, kCreated},
        {"IsGivenAlongWithAFailure", find + "=E_UNEXPECTED,keep", kSuccess, kWhole},
        {"IsGivenWithAPositiveResult", find + "=S_FALSE,keep", kSuccess, kWhole},
    };
}

INSTANTIATE_TEST_SUITE_P(Translation, DispBCExitTest,
                         testing::ValuesIn(ParameterExits("#1", kNoTranslation)),
                         NameOfConditionExit);
INSTANTIATE_TEST_SUITE_P(Rotation, DispBCExitTest,
                         testing::ValuesIn(ParameterExits("#2", kNoRotation)), NameOfConditionExit);
INSTANTIATE_TEST_SUITE_P(Both, DispBCExitTest,
                         testing::Values(ConditionExit{"Missing", kFind + std::string("=null"),
                                                       kNoTranslation, kCreated}),
                         NameOfConditionExit);

INSTANTIATE_TEST_SUITE_P(
    Components, DispBCExitTest,
    testing::Values(
        ConditionExit{"AllRefused", "VEXIVectorParameter::SetComponent=E_ACCESSDENIED", kSuccess,
                      "HLXDisplacementBC: 0 0 0 0 0 0, 101110 subroutine used" + kOnFace},
        ConditionExit{"FirstRefused", "VEXIVectorParameter::SetComponent#1=E_FAIL", kSuccess,
                      "HLXDisplacementBC: 0 0 3.5 0 -0.5 0, 101110 subroutine used" + kOnFace},
        ConditionExit{"LastRefused", "VEXIVectorParameter::SetComponent#3=E_FAIL", kSuccess,
                      "HLXDisplacementBC: 1.5 0 3.5 0 0 0, 101110 subroutine used" + kOnFace},
        ConditionExit{"TakenAlongWithAFailure",
                      "VEXIVectorParameter::SetComponent=E_UNEXPECTED,keep", kSuccess, kWhole}),
    NameOfConditionExit);

class DispBCMissingTest : public BoundaryConditionTest
{};

TEST_F(DispBCMissingTest, MessagesOfParametersAreFlushed)
{
    EXPECT_EQ(FlushedBy(kDisplacement, std::string(kFind) + "#1=null"), kNoTranslation.out);
    EXPECT_EQ(FlushedBy(kDisplacement, std::string(kFind) + "#2=null"), kNoRotation.out);
}

TEST_F(DispBCMissingTest, WithoutATranslationTheRotationIsNotLookedFor)
{
    const std::vector<std::string> calls =
        CallsOfCreation(kDisplacement, std::string(kFind) + "#1=null");
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls.back(), "VEXISamAnalysisEntity::GetVectorParameter(\"DisplBCTrans\", &)");
}

TEST_F(DispBCMissingTest, WithoutARotationNoTranslationIsGiven)
{
    const std::vector<std::string> calls =
        CallsOfCreation(kDisplacement, std::string(kFind) + "#2=null");
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls.back(), "VEXISamAnalysisEntity::GetVectorParameter(\"DisplBCRotation\", &)");
}

// --- Attributes ---------------------------------------------------------------------------------

INSTANTIATE_TEST_SUITE_P(
    AttributeAccess, DispBCExitTest,
    testing::Values(
        ConditionExit{"None", "cast:TYPE->VEXISpecAttrAccess=E_NOINTERFACE", kNoAttributes,
                      kValued},
        ConditionExit{"Denied", "cast:TYPE->VEXISpecAttrAccess=E_ACCESSDENIED", kNoAttributes,
                      kValued},
        ConditionExit{"Null", "cast:TYPE->VEXISpecAttrAccess=null", kNoAttributes, kValued},
        ConditionExit{"GivenAlongWithAFailure", "cast:TYPE->VEXISpecAttrAccess=E_UNEXPECTED,keep",
                      kNoAttributes, kValued},
        ConditionExit{"GivenWithAPositiveResult", "cast:TYPE->VEXISpecAttrAccess=S_FALSE,keep",
                      kSuccess, kWhole}),
    NameOfConditionExit);

INSTANTIATE_TEST_SUITE_P(
    Switches, DispBCExitTest,
    testing::Values(
        ConditionExit{"AllRefused", "VEXISpecAttrAccess::SetBoolean=E_ACCESSDENIED", kSuccess,
                      kValued + " used" + kOnFace},
        ConditionExit{"FirstTranslationRefused", "VEXISpecAttrAccess::SetBoolean#2=E_FAIL",
                      kSuccess,
                      "HLXDisplacementBC: 1.5 0 3.5 0 -0.5 0, 001110 subroutine used" + kOnFace},
        ConditionExit{"SubroutineRefused", "VEXISpecAttrAccess::SetBoolean#8=E_FAIL", kSuccess,
                      "HLXDisplacementBC: 1.5 0 3.5 0 -0.5 0, 101110 used" + kOnFace},
        ConditionExit{"TakenAlongWithAFailure", "VEXISpecAttrAccess::SetBoolean=E_UNEXPECTED,keep",
                      kSuccess, kWhole}),
    NameOfConditionExit);

INSTANTIATE_TEST_SUITE_P(
    Keys, DispBCExitTest,
    testing::Values(ConditionExit{"Fix", "VEXISpecAttrAccess::GetAttrKey#1=null", kSilent, kValued},
                    ConditionExit{"Last", "VEXISpecAttrAccess::GetAttrKey#8=null", kSilent,
                                  "HLXDisplacementBC: 1.5 0 3.5 0 -0.5 0, 101110"},
                    ConditionExit{"All", "VEXISpecAttrAccess::GetAttrKey=null", kSilent, kValued}),
    NameOfConditionExit);

TEST_F(DispBCMissingTest, AMissingKeyEndsItAtOnceAndLeavesTheSwitchesBeforeIt)
{
    const std::vector<const char*> names{"fixON", "u1ON",  "u2ON",  "u3ON",
                                         "ur1ON", "ur2ON", "ur3ON", "userSub"};
    for (std::size_t missing = 0; missing < names.size(); ++missing) {
        SCOPED_TRACE(names[missing]);
        EXPECT_EQ(RunWith("VEXISpecAttrAccess::GetAttrKey#" + std::to_string(missing + 1) + "=null",
                          [&] {
                              return HLXAnalysisTestUtils::CreateDispBC(analysis.Get(), "Name", 1,
                                                                        1, 1, 1, 1, 1, 1, 1, 1, 1,
                                                                        1, 1, 1, condition, step);
                          }),
                  kSilent);
        for (std::size_t i = 0; i < names.size(); ++i) {
            EXPECT_EQ(FlagOf(condition, names[i]), i < missing ? 1 : 0) << names[i];
        }
        EXPECT_EQ(SupportsOf(condition), std::vector<std::string>{});
    }
}

// --- Interface ----------------------------------------------------------------------------------

INSTANTIATE_TEST_SUITE_P(
    Interface, DispBCExitTest,
    testing::Values(ConditionExit{"None", "cast:TYPE->HLXIDisplacementBC=E_NOINTERFACE", kSilent,
                                  kDisplacement.attached},
                    ConditionExit{"Denied", "cast:TYPE->HLXIDisplacementBC=E_ACCESSDENIED", kSilent,
                                  kDisplacement.attached},
                    ConditionExit{"Null", "cast:TYPE->HLXIDisplacementBC=null", kSilent,
                                  kDisplacement.attached},
                    ConditionExit{"GivenAlongWithAFailure",
                                  "cast:TYPE->HLXIDisplacementBC=E_UNEXPECTED,keep", kSilent,
                                  kDisplacement.attached},
                    ConditionExit{"GivenWithAPositiveResult",
                                  "cast:TYPE->HLXIDisplacementBC=S_FALSE,keep", kSuccess, kWhole}),
    NameOfConditionExit);

INSTANTIATE_TEST_SUITE_P(
    Use, DispBCExitTest,
    testing::Values(ConditionExit{"Fails", "HLXICondition::SetUseAmplitude=E_FAIL", kSilent,
                                  kDisplacement.attached},
                    ConditionExit{"IsDenied", "HLXICondition::SetUseAmplitude=E_ACCESSDENIED",
                                  kSilent, kDisplacement.attached},
                    ConditionExit{"IsTakenAlongWithAFailure",
                                  "HLXICondition::SetUseAmplitude=E_UNEXPECTED,keep", kSilent,
                                  kDisplacement.ready},
                    ConditionExit{"IsNotTakenWithAPositiveResult",
                                  "HLXICondition::SetUseAmplitude=S_FALSE", kSuccess,
                                  kDisplacement.attached + kOnFace},
                    ConditionExit{"IsTakenWithAPositiveResult",
                                  "HLXICondition::SetUseAmplitude=S_FALSE,keep", kSuccess, kWhole}),
    NameOfConditionExit);

}  // namespace
}  // namespace hlxtest::statics
