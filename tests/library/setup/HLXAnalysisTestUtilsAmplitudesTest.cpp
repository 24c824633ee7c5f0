// SPDX-License-Identifier: Apache-2.0
// Amplitudes with a table, made without a test case.
#include "library/setup/StaticAmplitudes.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::CreateTabularAmplitude), AmplitudeCreation>);
static_assert(std::is_same_v<decltype(&Utils::CreateSmoothStepAmplitude), AmplitudeCreation>);

TEST_P(StaticAmplitudeTest, HasTenRowsAndIsMadeWithoutAWord)
{
    EXPECT_EQ(Create(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(StateOf(amplitude), Filled());
    EXPECT_EQ(AliasOf(amplitude), "");
    EXPECT_EQ(Amplitudes(), States{Filled()});
    EXPECT_TRUE(amplitude->GetFather() == Model());
}

TEST_P(StaticAmplitudeTest, AnyOptionButZeroIsTheIntegerOne)
{
    for (const int option : {1, 2, 128, 255}) {
        EXPECT_EQ(Create(static_cast<unsigned char>(option)), (Outcome{S_OK, "", ""}));
        EXPECT_EQ(StateOf(amplitude), Filled(1)) << option;
    }
}

TEST_P(StaticAmplitudeTest, WithoutTheOptionItIsNotCalled)
{
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen(0); }),
              (Lines{instantiation, GetParam().Factory() + "(&, VEXAnalysisDocument)",
                     GetParam().Query() + "(&)", "HLXIAmplitude::SetData([10])"}));
}

TEST_P(StaticAmplitudeTest, TheOptionIsSetBeforeTheTable)
{
    EXPECT_EQ(QuietCallsOf([&] { CreateUnseen(1); }),
              (Lines{instantiation, GetParam().Factory() + "(&, VEXAnalysisDocument)",
                     GetParam().Query() + "(&)", "HLXIAmplitude::SetTimeSpan(1)",
                     "HLXIAmplitude::SetData([10])"}));
}

TEST_P(StaticAmplitudeTest, OnlyTheAmplitudeIsHeld)
{
    const unsigned long before = ReferencesToFactory();
    EXPECT_EQ(HeldAfter("", [&] { return CreateUnseen(1); }),
              (HeldCounts{{GetParam().lateType, 1}}));
    EXPECT_EQ(References(*amplitude.Get()), 1U);
    EXPECT_EQ(ReferencesToFactory(), before);
}

TEST_P(StaticAmplitudeTest, AFormerOneInTheHandleIsLetGoAndStaysInTheDocument)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    const VEXISpecObject_var former = amplitude;
    EXPECT_EQ(Create(1), (Outcome{S_OK, "", ""}));
    EXPECT_FALSE(amplitude == former);
    EXPECT_EQ(References(*former.Get()), 1U);
    EXPECT_EQ(Amplitudes(), (States{Filled(0), Filled(1)}));
}

TEST_P(StaticAmplitudeTest, IsMadeInTheDocumentGiven)
{
    AnalysisDocument other{0};
    EXPECT_EQ(OutcomeOf([&] { return GetParam().create(other.Get(), 0, amplitude); }),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(StateOf(amplitude), Filled());
    EXPECT_EQ(Amplitudes(), States{});
    amplitude.Reset();
}

TEST_P(StaticAmplitudeTest, ADocumentThatIsNoneOrOfAnotherTypeIsRefusedByThePlatform)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    const VEXISpecObject_var former = amplitude;
    for (VEXDocument* const document : {static_cast<VEXDocument*>(nullptr), New("VEXPart")}) {
        Outcome outcome{};
        EXPECT_EQ(QuietCallsOf([&] {
                      outcome =
                          OutcomeOf([&] { return GetParam().create(document, 1, amplitude); });
                  }).size(),
                  2U);
        EXPECT_EQ(outcome.result, E_INVALIDARG);
        EXPECT_EQ(outcome.out, "");
        EXPECT_TRUE(amplitude == former);
    }
    EXPECT_EQ(Amplitudes(), States{Filled()});
}

INSTANTIATE_TEST_SUITE_P(Of, StaticAmplitudeTest, testing::ValuesIn(amplitudeKinds),
                         NameOfAmplitudeKind);

}  // namespace
}  // namespace hlxtest::statics
