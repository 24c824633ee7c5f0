// SPDX-License-Identifier: Apache-2.0
// What an input file marks as not expected in a step, typed row by row.
#include "reference/inputfile/SupportFixture.h"

#include <sstream>

namespace {

using vex::Feature;

const std::pair<const char*, const char*> loads[] = {
    {"HLXPressure", "PRESSURE"},
    {"HLXGravity", "GRAVITY"},
    {"HLXRotationalBodyForce", "ROTATIONAL BODY FORCE"},
    {"HLXConcentratedForce", "CONCENTRATED FORCE"},
    {"HLXConcHeatFlux", "CONCENTRATED HEAT FLUX"},
    {"HLXSurfaceHeatFlux", "SURFACE HEAT FLUX"},
    {"HLXBodyHeatFlux", "BODY HEAT FLUX"},
    {"HLXFilmCondition", "FILM CONDITION"},
};

struct Row
{
    const char* step;
    const char* words;
    bool takesForces;
    bool takesHeat;
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
                                                   {"TstOtherLoad", "HLXLoad", {}},
                                                   {"TstHeatStep", "HLXHeatTransferStepLT", {}},
                                                   {"TstStep", "HLXStepLT", {}}},
                                                  error);
        }();
        EXPECT_TRUE(added);
    }

    /// Each keyword line of the loads in the step up to its first parameter, with a comment above.
    std::string Lines(const char* type, const std::vector<const char*>& kinds)
    {
        const Feature& step = AddStep(type);
        for (const char* const kind : kinds) {
            Load(kind, step);
        }
        std::istringstream lines(TextOfLoads());
        std::string text;
        for (std::string line; std::getline(lines, line);) {
            text += line.substr(0, line.find(',')) + "\n";
        }
        return text;
    }
};

class EachStep : public InputFileExpectations, public testing::WithParamInterface<Row>
{};

TEST_P(EachStep, MarksWhatIsNotExpectedInIt)
{
    const Row& row = GetParam();
    const std::string mark = std::string("** not expected in ") + row.words + "\n";
    std::vector<const char*> kinds;
    std::string expected;
    for (const auto& [type, keyword] : loads) {
        kinds.push_back(type);
        const bool isForce = kinds.size() <= 4;
        expected += (isForce ? row.takesForces : row.takesHeat) ? "" : mark;
        expected += std::string("*") + keyword + "\n";
    }
    EXPECT_EQ(Lines(row.step, kinds), expected);
}

INSTANTIATE_TEST_SUITE_P(
    InputFileExpectations, EachStep,
    testing::Values(Row{"HLXGeneralStaticStepLT", "a general static step", true, false},
                    Row{"HLXStaticLPStepLT", "a static perturbation step", true, false},
                    Row{"HLXRiksStepLT", "a Riks step", true, false},
                    Row{"HLXHeatTransferStepLT", "a heat transfer step", false, true},
                    Row{"HLXExplicitDynamicStepLT", "an explicit dynamic step", true, false},
                    Row{"HLXExplicitDynamicLT", "an explicit dynamic step", true, false},
                    Row{"HLXFrequencyStepLT", "a frequency step", false, false}),
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
    Make("HLXClamp", step);
    Make("HLXTemperatureLT", step);
    Make("HLXMassScalingLT", step);
    EXPECT_EQ(Text().find("not expected"), std::string::npos);
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
