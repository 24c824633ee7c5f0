// SPDX-License-Identifier: Apache-2.0
// What an input file marks as not expected in a step, typed row by row.
#include "host/feature/FeatureSearch.h"
#include "reference/inputfile/SupportFixture.h"

#include <set>
#include <sstream>

namespace {

using vex::Feature;

enum Group { Force, Heat, Hold, Motion, Prescribed, History };

struct Condition
{
    const char* type;
    const char* keyword;
    const char* container;
    Group group;
};

constexpr const char* loads = "HLXLoadContainerLT";
constexpr const char* boundaries = "HLXBoundaryConditionContainerLT";
constexpr const char* temperatures = "HLXTemperatureContainerLT";

// In the order in which a step has the containers.
const Condition conditions[] = {
    {"HLXPressure", "PRESSURE", loads, Force},
    {"HLXGravity", "GRAVITY", loads, Force},
    {"HLXRotationalBodyForce", "ROTATIONAL BODY FORCE", loads, Force},
    {"HLXConcentratedForce", "CONCENTRATED FORCE", loads, Force},
    {"HLXConcHeatFlux", "CONCENTRATED HEAT FLUX", loads, Heat},
    {"HLXSurfaceHeatFlux", "SURFACE HEAT FLUX", loads, Heat},
    {"HLXBodyHeatFlux", "BODY HEAT FLUX", loads, Heat},
    {"HLXFilmCondition", "FILM CONDITION", loads, Heat},
    {"HLXDisplacementBC", "DISPLACEMENT", boundaries, Hold},
    {"HLXClamp", "CLAMP", boundaries, Hold},
    {"HLXMotionBCLT", "MOTION", boundaries, Motion},
    {"HLXVelocityBCLT", "VELOCITY", boundaries, Motion},
    {"HLXAccelerationBCLT", "ACCELERATION", boundaries, Motion},
    {"HLXTemperatureLT", "TEMPERATURE", temperatures, Prescribed},
    {"HLXTemperatureHistoryLT", "TEMPERATURE HISTORY", temperatures, History},
};

struct Row
{
    const char* step;
    const char* words;
    std::set<Group> expected;
};

class InputFileExpectations : public hlxtest::SupportTest
{
protected:
    static void AddTypes()
    {
        static const bool added = [] {
            std::string error;
            return vex::LateTypes::Instance().Add({{"TstGravity", "HLXGravity", {}},
                                                   {"TstFlux", "HLXHeatFlux", {}},
                                                   {"TstClamp", "HLXClamp", {}},
                                                   {"TstHistory", "HLXTemperatureHistoryLT", {}},
                                                   {"TstOtherLoad", "HLXLoad", {}},
                                                   {"TstHeatStep", "HLXHeatTransferStepLT", {}},
                                                   {"TstStep", "HLXStepLT", {}}},
                                                  error);
        }();
        EXPECT_TRUE(added);
    }

    /// Each keyword line in the containers of the step's loads, boundary conditions and
    /// temperatures up to its first parameter, with a comment above, but for those of containers.
    std::string Lines()
    {
        static const std::set<std::string> blocks = {"*BOUNDARY CONDITIONS", "*INTERACTIONS",
                                                     "*TEMPERATURES"};
        std::istringstream lines(Between(Text(), "*LOADS", "*END HISTORY"));
        std::string text;
        for (std::string line; std::getline(lines, line);) {
            const std::string keyword = line.substr(0, line.find(','));
            if (keyword.starts_with('*') && !keyword.starts_with("*END ") &&
                !blocks.contains(keyword)) {
                text += keyword + "\n";
            }
        }
        return text;
    }

    /// As Lines, of a step with these loads.
    std::string Lines(const char* type, const std::vector<const char*>& kinds)
    {
        const Feature& step = AddStep(type);
        for (const char* const kind : kinds) {
            Load(kind, step);
        }
        return Lines();
    }
};

class EachStep : public InputFileExpectations, public testing::WithParamInterface<Row>
{};

TEST_P(EachStep, MarksWhatIsNotExpectedInIt)
{
    const Row& row = GetParam();
    const Feature& step = AddStep(row.step);
    std::string expected;
    for (const Condition& condition : conditions) {
        MakeIn(condition.container, condition.type, step);
        expected += row.expected.contains(condition.group)
                        ? ""
                        : std::string("** not expected in ") + row.words + "\n";
        expected += std::string("*") + condition.keyword + "\n";
    }
    EXPECT_EQ(Lines(), expected);
}

INSTANTIATE_TEST_SUITE_P(
    InputFileExpectations, EachStep,
    testing::Values(
        Row{"HLXGeneralStaticStepLT", "a general static step", {Force, Hold, Prescribed, History}},
        Row{"HLXStaticLPStepLT", "a static perturbation step", {Force, Hold, Prescribed, History}},
        Row{"HLXRiksStepLT", "a Riks step", {Force, Hold, Prescribed, History}},
        Row{"HLXHeatTransferStepLT", "a heat transfer step", {Heat, Prescribed}},
        Row{"HLXExplicitDynamicStepLT",
            "an explicit dynamic step",
            {Force, Hold, Motion, Prescribed, History}},
        Row{"HLXExplicitDynamicLT",
            "an explicit dynamic step",
            {Force, Hold, Motion, Prescribed, History}},
        Row{"HLXFrequencyStepLT", "a frequency step", {Hold}}),
    [](const auto& row) { return std::string(row.param.step); });

TEST_F(InputFileExpectations, ALateTypeFollowsWhatItExtends)
{
    AddTypes();
    EXPECT_EQ(Lines("TstHeatStep", {"TstGravity", "TstFlux", "TstOtherLoad"}),
              "** not expected in a heat transfer step\n"
              "*FEATURE\n"
              "*FEATURE\n"
              "*FEATURE\n");
}

TEST_F(InputFileExpectations, BoundaryConditionsAndTemperaturesFollowWhatTheyExtend)
{
    AddTypes();
    const Feature& step = AddStep("TstHeatStep");
    MakeIn(boundaries, "TstClamp", step);
    MakeIn(temperatures, "TstHistory", step);
    EXPECT_EQ(Lines(),
              "** not expected in a heat transfer step\n"
              "*FEATURE\n"
              "** not expected in a heat transfer step\n"
              "*FEATURE\n");
}

TEST_F(InputFileExpectations, NoKindOfLoadIsExpectedInAFrequencyStep)
{
    AddTypes();
    EXPECT_EQ(Lines("HLXFrequencyStepLT", {"TstOtherLoad"}),
              "** not expected in a frequency step\n"
              "*FEATURE\n");
}

TEST_F(InputFileExpectations, NothingIsMarkedInStepsOfWhichNothingIsKnown)
{
    AddTypes();
    EXPECT_EQ(Lines("TstStep", {"HLXGravity", "HLXFilmCondition"}),
              "*GRAVITY\n"
              "*FILM CONDITION\n");
}

TEST_F(InputFileExpectations, OtherConditionsAreNotMarked)
{
    Feature& step = AddStep("HLXFrequencyStepLT");
    MakeIn(boundaries, "HLXStringBC", step);
    MakeIn(boundaries, "HLXSubmodelBCLT", step);
    Make("HLXMassScalingLT", step);
    EXPECT_EQ(Text().find("not expected"), std::string::npos);
}

TEST_F(InputFileExpectations, NothingIsMarkedInTheInitialStep)
{
    Feature& initial = *vex::FirstChildOfType(*vex::FirstChildOfType(Case(1), "HLXHacSimHistLT"),
                                              "HLXHacInitialStepLT");
    for (const char* const type : {"HLXDisplacementBC", "HLXClamp", "HLXVelocityBCLT"}) {
        MakeIn(boundaries, type, initial).Set("UseAmplitude", true);
    }
    MakeIn("HLXHacFieldContainerLT", "HLXInitialTemperatureLT", initial);
    const std::string text = Text();
    EXPECT_NE(text.find("\n*VELOCITY"), std::string::npos);
    EXPECT_NE(text.find("\n*INITIAL TEMPERATURE"), std::string::npos);
    EXPECT_EQ(text.find("not expected"), std::string::npos);
}

TEST_F(InputFileExpectations, LoadsOutsideOfStepsAreNotMarked)
{
    AddStep("HLXFrequencyStepLT");
    Make("HLXGravity", Model());
    Make("HLXGravity", Case(1));
    const std::string text = Text();
    EXPECT_NE(text.find("\n*GRAVITY"), text.rfind("\n*GRAVITY"));
    EXPECT_EQ(text.find("not expected"), std::string::npos);
}

TEST_F(InputFileExpectations, WhatIsMarkedIsWrittenAsEverWithWhatIsBelowIt)
{
    const std::string box = hlxtest::PartSpecimen(folder, "box");
    Feature& film = Load("HLXFilmCondition", AddStep("HLXStaticLPStepLT"), "Film.1");
    film.Set("Coefficients", vex::Boxed<vex::DoubleList>({1.5, 2.5}));
    Region(film, box, 2, 1);
    LinkToUses(box, {"Box.1"});
    EXPECT_EQ(TextOfLoads(),
              "** not expected in a static perturbation step\n"
              "*FILM CONDITION, NAME=\"Film.1\", CONTENTS, Active=true, FollowsMesh=false, "
              "Amplitude=none, UseAmplitude=false, UserSubroutine=false, ReferenceTemperature=0, "
              "FilmCoefficient=0, UseFilmAmplitude=false, FilmAmplitude=none, "
              "TemperatureDependent=false, FileName=\"\", Coefficients=[2], Temperatures=[0]\n"
              "1.5, 2.5\n" +
                  SupportLine(box, 2, 1) +
                  "\"Box.1/Face-1\"\n"
                  "*END FILM CONDITION\n");
}

}  // namespace
