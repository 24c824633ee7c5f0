// SPDX-License-Identifier: Apache-2.0
// The tabular amplitude of a test case where something on the way fails or is missing.
#include "library/setup/CaseAmplitudes.h"

namespace hlxtest::statics {
namespace {

using namespace caseamplitude;

enum class Kept { Former, None, New };

struct Broken
{
    const char* name;
    const char* faults;
    long result;
    const char* out;
    Kept member;
    bool isMade;
    bool isGiven;
    std::size_t calls;  ///< of the three that make it

    friend void PrintTo(const Broken& row, std::ostream* stream) { *stream << row.faults; }
};

class CaseAmplitudeExitTest : public CaseAmplitudeTest, public testing::WithParamInterface<Broken>
{};

TEST_P(CaseAmplitudeExitTest, AnswersPrintsAndKeeps)
{
    const Broken& row = GetParam();
    Outcome outcome{};
    const Lines calls =
        QuietCallsOf([&] { outcome = OutcomeOf([&] { return CreateUnseen(); }); }, {}, row.faults);
    EXPECT_EQ(outcome, (Outcome{row.result, row.out, ""}));
    Lines expected = {instantiation, creation, query};
    expected.resize(row.calls);
    EXPECT_EQ(calls, expected);
    EXPECT_EQ(Made().size(), row.isMade ? 1U : 0U);
    EXPECT_EQ(amplitude != nullptr, row.isGiven);
    const VEXISpecObject_var& member = testCase._AmplitudeFeature;
    switch (row.member) {
        case Kept::Former:
            EXPECT_TRUE(member == former);
            break;
        case Kept::None:
            EXPECT_FALSE(member);
            break;
        case Kept::New:
            EXPECT_EQ(TypeOf(member), "HLXTabularAmplitudeLT");
            break;
    }
    EXPECT_EQ(References(*former.Get()), row.member == Kept::Former ? 2U : 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Of, CaseAmplitudeExitTest,
    testing::Values(
        Broken{"NoFactory", "VEXInstantiateComponent=null", E_FAIL, noFactory, Kept::Former, false,
               false, 1},
        Broken{"NoFactoryWithOne", "VEXInstantiateComponent=1", E_FAIL, noFactory, Kept::Former,
               false, false, 1},
        Broken{"FailingFactory", "VEXInstantiateComponent=E_ACCESSDENIED", E_FAIL, noFactory,
               Kept::Former, false, false, 1},
        Broken{"FailingFactoryThoughGiven", "VEXInstantiateComponent=E_ACCESSDENIED,keep", E_FAIL,
               noFactory, Kept::Former, false, false, 1},
        Broken{"PositiveFactory", "VEXInstantiateComponent=S_FALSE,keep", S_OK, "", Kept::New, true,
               true, 3},
        Broken{"FailingCreation", "HLXIAmplitudeFact::CreateTabularAmplitude=E_ACCESSDENIED",
               E_FAIL, notMade, Kept::None, false, false, 2},
        Broken{"CreationFailingWithMinusOne", "HLXIAmplitudeFact::CreateTabularAmplitude=-1",
               E_FAIL, notMade, Kept::None, false, false, 2},
        Broken{"FailingCreationThoughGiven",
               "HLXIAmplitudeFact::CreateTabularAmplitude=E_UNEXPECTED,keep", E_FAIL, notMade,
               Kept::New, true, false, 2},
        Broken{"NothingCreated", "HLXIAmplitudeFact::CreateTabularAmplitude=null", E_FAIL, notMade,
               Kept::None, false, false, 2},
        Broken{"NothingCreatedWithOne", "HLXIAmplitudeFact::CreateTabularAmplitude=1", E_FAIL,
               notMade, Kept::None, false, false, 2},
        Broken{"PositiveCreation", "HLXIAmplitudeFact::CreateTabularAmplitude=7,keep", S_OK, "",
               Kept::New, true, true, 3},
        Broken{"NoInterface", "cast:HLXTabularAmplitudeLT->HLXITabularAmplitude=E_NOINTERFACE",
               E_FAIL, noInterface, Kept::New, true, false, 3},
        Broken{"FailingQuery", "cast:HLXTabularAmplitudeLT->HLXITabularAmplitude=E_ACCESSDENIED",
               E_FAIL, noInterface, Kept::New, true, false, 3},
        Broken{"EmptyInterface", "cast:HLXTabularAmplitudeLT->HLXITabularAmplitude=null", E_FAIL,
               noInterface, Kept::New, true, false, 3},
        Broken{"EmptyInterfaceWithOne", "cast:HLXTabularAmplitudeLT->HLXITabularAmplitude=1",
               E_FAIL, noInterface, Kept::New, true, false, 3},
        Broken{"PositiveQuery", "cast:HLXTabularAmplitudeLT->HLXITabularAmplitude=7,keep", 7, "",
               Kept::New, true, true, 3}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(CaseAmplitudeTest, AnInterfaceGivenAlongWithAFailureIsAFailure)
{
    EXPECT_EQ(Create("cast:HLXTabularAmplitudeLT->HLXITabularAmplitude=E_UNEXPECTED,keep"),
              (Outcome{E_FAIL, noInterface, ""}));
    amplitude = nullptr;
    LetGo(std::exchange(testCase._AmplitudeFeature, {}));
}

}  // namespace
}  // namespace hlxtest::statics
