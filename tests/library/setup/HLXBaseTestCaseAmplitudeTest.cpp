// SPDX-License-Identifier: Apache-2.0
// The tabular amplitude that a test case makes and keeps.
#include "library/setup/CaseAmplitudes.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using namespace caseamplitude;

static_assert(std::is_same_v<decltype(&ExposedTestCase::CreateTabularAmplitude),
                             HRESULT (HLXBaseTestCase::*)(HLXITabularAmplitude*&)>);

TEST_F(CaseAmplitudeTest, IsMadeKeptAndGivenWithoutAWordAndWithoutRows)
{
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    ASSERT_NE(amplitude, nullptr);
    EXPECT_EQ(StateOf(testCase._AmplitudeFeature),
              (AmplitudeState{"HLXTabularAmplitudeLT", 0, {}}));
    EXPECT_TRUE(VEXShare(amplitude) == testCase._AmplitudeFeature);
    EXPECT_EQ(Made(), (Lines{"HLXTabularAmplitudeLT"}));
    EXPECT_EQ(StateOf(former), (AmplitudeState{"HLXSmoothStepAmplitudeLT", 0, tenRows}));
}

TEST_F(CaseAmplitudeTest, IsMadeStepByStep)
{
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen(); }), (Lines{instantiation, creation, query}));
}

TEST_F(CaseAmplitudeTest, IsHeldByTheMemberAndTheCaller)
{
    EXPECT_EQ(HeldAfter("", [&] { return CreateUnseen(); }),
              (HeldCounts{{"HLXTabularAmplitudeLT", 1}}));
    EXPECT_EQ(References(*amplitude), 2U);
    EXPECT_EQ(References(*former.Get()), 1U);
    testCase._AmplitudeFeature.Reset();
    EXPECT_EQ(References(*amplitude), 1U);
}

TEST_F(CaseAmplitudeTest, ASecondOneReplacesTheFirstInTheMember)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    const VEXISpecObject_var first = testCase._AmplitudeFeature;
    Release();
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_FALSE(testCase._AmplitudeFeature == first);
    EXPECT_EQ(References(*first.Get()), 1U);
    EXPECT_EQ(Made(), (Lines{"HLXTabularAmplitudeLT", "HLXTabularAmplitudeLT"}));
}

TEST_F(CaseAmplitudeTest, WhatTheCallerHoldsStaysWhenNoneIsMade)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    const HLXITabularAmplitude* const held = amplitude;
    for (const char* const faults :
         {"VEXInstantiateComponent=E_FAIL", "HLXIAmplitudeFact::CreateTabularAmplitude=E_FAIL",
          "HLXIAmplitudeFact::CreateTabularAmplitude=null"}) {
        EXPECT_EQ(Create(faults).result, E_FAIL);
        EXPECT_EQ(amplitude, held) << faults;
    }
    EXPECT_EQ(References(*held), 1U);
}

TEST_F(CaseAmplitudeTest, WithoutADocumentNoneIsMadeAndTheFormerOneIsForgotten)
{
    testCase._Document = nullptr;
    const Outcome outcome = Create();
    EXPECT_EQ(outcome.result, E_FAIL);
    EXPECT_EQ(outcome.out, notMade);
    EXPECT_FALSE(testCase._AmplitudeFeature);
    EXPECT_EQ(References(*former.Get()), 1U);
    EXPECT_EQ(amplitude, nullptr);
    EXPECT_EQ(Made(), Lines{});
}

TEST_F(CaseAmplitudeTest, InADocumentOfAnotherTypeNoneIsMade)
{
    testCase._Document = New("VEXPart");
    const Outcome outcome = Create();
    EXPECT_EQ(outcome.result, E_FAIL);
    EXPECT_EQ(outcome.out, notMade);
    EXPECT_FALSE(testCase._AmplitudeFeature);
    EXPECT_EQ(amplitude, nullptr);
}

}  // namespace
}  // namespace hlxtest::statics
