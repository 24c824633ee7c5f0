// SPDX-License-Identifier: Apache-2.0
// Amplitudes with a table where something on the way fails or is missing.
#include "library/setup/StaticAmplitudes.h"

namespace hlxtest::statics {
namespace {

class StaticAmplitudeExitTest : public StaticAmplitudeTest
{};

TEST_P(StaticAmplitudeExitTest, AFactoryThatCannotBeMadeIsAnsweredAndNothingIsGiven)
{
    ASSERT_EQ(Create(), (Outcome{S_OK, "", ""}));
    const VEXISpecObject_var former = amplitude;
    const unsigned long before = ReferencesToFactory();
    for (const auto& [outcome, result] : std::map<std::string, long>{
             {"E_FAIL", E_FAIL}, {"E_ACCESSDENIED", E_ACCESSDENIED}, {"-1", -1}}) {
        const std::string faults = "VEXInstantiateComponent=" + outcome;
        EXPECT_EQ(Create(1, faults), (Outcome{result, "", ""}));
        EXPECT_EQ(QuietCallsOf([&] { CreateUnseen(1); }, {}, faults), (Lines{instantiation}));
    }
    EXPECT_EQ(ReferencesToFactory(), before);
    EXPECT_TRUE(amplitude == former);
    EXPECT_EQ(Amplitudes(), States{Filled()});
}

TEST_P(StaticAmplitudeExitTest, AFactoryGivenAlongWithAFailureIsNotUsed)
{
    const unsigned long before = ReferencesToFactory();
    EXPECT_EQ(Create(1, "VEXInstantiateComponent=E_ACCESSDENIED,keep"),
              (Outcome{E_ACCESSDENIED, "", ""}));
    EXPECT_FALSE(amplitude);
    EXPECT_EQ(Amplitudes(), States{});
    ReleaseFactory<HLXIAmplitudeFact>(factoryName, ReferencesToFactory() - before);
}

TEST_P(StaticAmplitudeExitTest, WithoutAFactoryAfterASuccessThereIsNoAmplitude)
{
    for (const char* const outcome : {"null", "1"}) {
        EXPECT_EQ(Create(1, std::string("VEXInstantiateComponent=") + outcome),
                  (Outcome{E_FAIL, "", ""}));
        EXPECT_FALSE(amplitude);
    }
    EXPECT_EQ(Amplitudes(), States{});
}

struct Broken
{
    const char* name;
    const char* call;  ///< "factory", "query" or a name
    const char* outcome;
    long result;
    bool isGiven;   ///< whether the handle holds the amplitude
    int made;       ///< amplitudes in the document
    bool isFilled;  ///< whether it has the table
    int timeSpan;
    std::size_t calls;  ///< of the platform
};

constexpr Broken brokenCalls[] = {
    {"FailingCreation", "factory", "=E_ACCESSDENIED", E_ACCESSDENIED, false, 0, false, 0, 2},
    {"CreationFailingWithMinusOne", "factory", "=-1", -1, false, 0, false, 0, 2},
    {"FailingCreationThoughGiven", "factory", "=E_UNEXPECTED,keep", E_UNEXPECTED, true, 1, false, 0,
     2},
    {"NothingCreated", "factory", "=null", E_FAIL, false, 0, false, 0, 2},
    {"NothingCreatedWithOne", "factory", "=1", E_FAIL, false, 0, false, 0, 2},
    {"PositiveCreation", "factory", "=7,keep", S_OK, true, 1, true, 1, 5},
    {"NoInterface", "query", "=E_NOINTERFACE", E_FAIL, true, 1, false, 0, 3},
    {"FailingQuery", "query", "=E_ACCESSDENIED", E_FAIL, true, 1, false, 0, 3},
    {"EmptyInterface", "query", "=null", E_FAIL, true, 1, false, 0, 3},
    {"EmptyInterfaceWithOne", "query", "=1", E_FAIL, true, 1, false, 0, 3},
    {"PositiveQuery", "query", "=S_FALSE,keep", S_OK, true, 1, true, 1, 5},
    {"FailingOption", "HLXIAmplitude::SetTimeSpan", "=E_ACCESSDENIED", S_OK, true, 1, true, 0, 5},
    {"FailingTable", "HLXIAmplitude::SetData", "=E_ACCESSDENIED", E_ACCESSDENIED, true, 1, false, 1,
     5},
    {"FailingTableThoughTaken", "HLXIAmplitude::SetData", "=E_UNEXPECTED,keep", E_UNEXPECTED, true,
     1, true, 1, 5},
    {"PositiveTable", "HLXIAmplitude::SetData", "=7,keep", 7, true, 1, true, 1, 5},
};

TEST_P(StaticAmplitudeExitTest, EachCallThatFailsIsAnsweredAsItShould)
{
    for (const Broken& row : brokenCalls) {
        SCOPED_TRACE(row.name);
        const std::string call = row.call == std::string("factory") ? GetParam().Factory()
                                 : row.call == std::string("query") ? GetParam().Query()
                                                                    : row.call;
        const std::size_t before = Amplitudes().size();
        const unsigned long factoryBefore = ReferencesToFactory();
        amplitude.Reset();
        Outcome outcome{};
        const Lines calls = QuietCallsOf(
            [&] { outcome = OutcomeOf([&] { return CreateUnseen(1); }); }, {}, call + row.outcome);
        EXPECT_EQ(outcome, (Outcome{row.result, "", ""}));
        EXPECT_EQ(calls.size(), row.calls);
        EXPECT_EQ(amplitude != nullptr, row.isGiven);
        if (amplitude) {
            EXPECT_EQ(References(*amplitude.Get()), 1U);
        }
        const States states = Amplitudes();
        ASSERT_EQ(states.size(), before + static_cast<std::size_t>(row.made));
        if (row.made > 0) {
            EXPECT_EQ(states.back(), row.isFilled ? Filled(row.timeSpan) : Unfilled(row.timeSpan));
        }
        EXPECT_EQ(ReferencesToFactory(), factoryBefore);
    }
}

TEST_P(StaticAmplitudeExitTest, AnInterfaceGivenAlongWithAFailureIsNotUsed)
{
    EXPECT_EQ(Create(1, GetParam().Query() + "=E_UNEXPECTED,keep"), (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(Amplitudes(), States{Unfilled()});
    LetGo(std::exchange(amplitude, {}));
}

INSTANTIATE_TEST_SUITE_P(Of, StaticAmplitudeExitTest, testing::ValuesIn(amplitudeKinds),
                         NameOfAmplitudeKind);

}  // namespace
}  // namespace hlxtest::statics
