// SPDX-License-Identifier: Apache-2.0
// Creating a velocity: the order of calls; its values, given whatever the switches say; its exits.
#include "library/conditions/BoundaryConditionKinds.h"

#include <limits>
#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(
    std::is_same_v<decltype(&Utils::CreateVelocityBC),
                   HRESULT (*)(VEXDocument*, VEXUnicodeString, unsigned char, double, unsigned char,
                               double, unsigned char, double, unsigned char, double, unsigned char,
                               double, unsigned char, double, VEXISpecObject_var&,
                               VEXISamAnalysisSet_var&)>);

const Outcome kSuccess{S_OK, "", ""};
const Outcome kSilent{E_FAIL, "", ""};
const std::string kWhole = kVelocity.Whole();
const std::string kOnFace = kWhole.substr(kVelocity.ready.size());
const std::string kNotUsed = "HLXVelocityBCLT: 1.5 2.5 3.5 0.25 -0.5 0.75, 101110";

class VelocityBCTest : public BoundaryConditionTest
{
protected:
    /// Creates a velocity with the same switch for each degree of freedom.
    Outcome CreateWith(unsigned char on)
    {
        return OutcomeOf([&] {
            return Utils::CreateVelocityBC(analysis.Get(), "Name", on, 1.5, on, 2.5, on, 3.5, on,
                                           4.5, on, 5.5, on, 6.5, condition, step);
        });
    }
};

TEST_F(VelocityBCTest, IsValuedSwitchedAndPutOnAFace)
{
    EXPECT_EQ(CallsOfCreation(kVelocity),
              WithSupport(
                  {
                      "VEXInstantiateComponent(\"HLXBoundaryConditionsFact\", "
                      "HLXIBoundaryConditionsFact, &)",
                      "HLXIBoundaryConditionsFact::CreateVelocity(&, VEXAnalysisDocument, "
                      "HLXGeneralStaticStepLT)",
                      "HLXIMotionBC::SetValue(1, 1.5)",
                      "HLXIMotionBC::SetValue(2, 2.5)",
                      "HLXIMotionBC::SetValue(3, 3.5)",
                      "HLXIMotionBC::SetValue(4, 0.25)",
                      "HLXIMotionBC::SetValue(5, -0.5)",
                      "HLXIMotionBC::SetValue(6, 0.75)",
                      "HLXIMotionBC::SetSwitch(1, 1)",
                      "HLXIMotionBC::SetSwitch(2, 0)",
                      "HLXIMotionBC::SetSwitch(3, 1)",
                      "HLXIMotionBC::SetSwitch(4, 2)",
                      "HLXIMotionBC::SetSwitch(5, 1)",
                      "HLXIMotionBC::SetSwitch(6, 0)",
                      "HLXICondition::SetUseAmplitude(1)",
                  },
                  false));
}

TEST_F(VelocityBCTest, ValuesAreGivenWhateverTheSwitches)
{
    EXPECT_EQ(CreateWith(0), kSuccess);
    EXPECT_EQ(CreateWith(1), kSuccess);
    EXPECT_EQ(CreateWith(255), kSuccess);
    const std::string head = "HLXVelocityBCLT: 1.5 2.5 3.5 4.5 5.5 6.5, ";
    EXPECT_EQ(TextsIn(step),
              (std::vector{head + "000000 used" + kOnFace, head + "111111 used" + kOnFace,
                           head + "111111 used" + kOnFace}));
}

TEST_F(VelocityBCTest, ValuesThatThePlatformRefusesAreLeftAtTheirDefault)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(OutcomeOf([&] {
                  return Utils::CreateVelocityBC(analysis.Get(), "Name", 1, infinity, 1, 0.1, 1,
                                                 std::numeric_limits<double>::quiet_NaN(), 1, 1e300,
                                                 1, -infinity, 1, 5e-324, condition, step);
              }),
              kSuccess);
    EXPECT_EQ(VelocityOf(condition, 1), 0);
    EXPECT_EQ(VelocityOf(condition, 2), 0.1);
    EXPECT_EQ(VelocityOf(condition, 3), 0);
    EXPECT_EQ(VelocityOf(condition, 4), 1e300);
    EXPECT_EQ(VelocityOf(condition, 5), 0);
    EXPECT_EQ(VelocityOf(condition, 6), 5e-324);
}

class VelocityBCExitTest : public VelocityBCTest, public testing::WithParamInterface<ConditionExit>
{};

TEST_P(VelocityBCExitTest, AnswersWithoutAWordAndLeavesTheCondition)
{
    ExpectExit(kVelocity, GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Interface, VelocityBCExitTest,
    testing::Values(
        ConditionExit{"None", "cast:TYPE->HLXIMotionBC=E_NOINTERFACE", kSilent, kVelocity.created},
        ConditionExit{"Denied", "cast:TYPE->HLXIMotionBC=E_ACCESSDENIED", kSilent,
                      kVelocity.created},
        ConditionExit{"Null", "cast:TYPE->HLXIMotionBC=null", kSilent, kVelocity.created},
        ConditionExit{"GivenAlongWithAFailure", "cast:TYPE->HLXIMotionBC=E_UNEXPECTED,keep",
                      kSilent, kVelocity.created},
        ConditionExit{"GivenWithAPositiveResult", "cast:TYPE->HLXIMotionBC=S_FALSE,keep", kSuccess,
                      kWhole}),
    NameOfConditionExit);

INSTANTIATE_TEST_SUITE_P(
    Values, VelocityBCExitTest,
    testing::Values(
        ConditionExit{"AllRefused", "HLXIMotionBC::SetValue=E_ACCESSDENIED", kSuccess,
                      "HLXVelocityBCLT: 0 0 0 0 0 0, 101110 used" + kOnFace},
        ConditionExit{"FirstRefused", "HLXIMotionBC::SetValue#1=E_FAIL", kSuccess,
                      "HLXVelocityBCLT: 0 2.5 3.5 0.25 -0.5 0.75, 101110 used" + kOnFace},
        ConditionExit{"LastRefused", "HLXIMotionBC::SetValue#6=E_FAIL", kSuccess,
                      "HLXVelocityBCLT: 1.5 2.5 3.5 0.25 -0.5 0, 101110 used" + kOnFace},
        ConditionExit{"TakenAlongWithAFailure", "HLXIMotionBC::SetValue=E_UNEXPECTED,keep",
                      kSuccess, kWhole}),
    NameOfConditionExit);

INSTANTIATE_TEST_SUITE_P(
    Switches, VelocityBCExitTest,
    testing::Values(
        ConditionExit{"AllRefused", "HLXIMotionBC::SetSwitch=E_ACCESSDENIED", kSuccess,
                      "HLXVelocityBCLT: 1.5 2.5 3.5 0.25 -0.5 0.75, 000000 used" + kOnFace},
        ConditionExit{"FirstRefused", "HLXIMotionBC::SetSwitch#1=E_FAIL", kSuccess,
                      "HLXVelocityBCLT: 1.5 2.5 3.5 0.25 -0.5 0.75, 001110 used" + kOnFace},
        ConditionExit{"TakenAlongWithAFailure", "HLXIMotionBC::SetSwitch=E_UNEXPECTED,keep",
                      kSuccess, kWhole}),
    NameOfConditionExit);

INSTANTIATE_TEST_SUITE_P(
    Use, VelocityBCExitTest,
    testing::Values(
        ConditionExit{"Fails", "HLXICondition::SetUseAmplitude=E_FAIL", kSilent, kNotUsed},
        ConditionExit{"IsDenied", "HLXICondition::SetUseAmplitude=E_ACCESSDENIED", kSilent,
                      kNotUsed},
        ConditionExit{"IsTakenAlongWithAFailure",
                      "HLXICondition::SetUseAmplitude=E_UNEXPECTED,keep", kSilent, kVelocity.ready},
        ConditionExit{"IsNotTakenWithAPositiveResult", "HLXICondition::SetUseAmplitude=S_FALSE",
                      kSuccess, kNotUsed + kOnFace},
        ConditionExit{"IsTakenWithAPositiveResult", "HLXICondition::SetUseAmplitude=S_FALSE,keep",
                      kSuccess, kWhole}),
    NameOfConditionExit);

}  // namespace
}  // namespace hlxtest::statics
