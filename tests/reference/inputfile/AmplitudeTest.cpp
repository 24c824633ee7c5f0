// SPDX-License-Identifier: Apache-2.0
// Amplitudes in input files, and how loads name theirs.
#include "reference/inputfile/SupportFixture.h"

namespace {

using vex::Feature;

class InputFileAmplitudes : public hlxtest::SupportTest
{
protected:
    /// What a load with that amplitude says of it.
    std::string ReferenceTo(const Feature& amplitude)
    {
        Feature& load = Load("HLXGravity", *step);
        load.Set("Amplitude", vex::Reference{amplitude.Id()});
        const std::string text = TextOfLoads();
        load.Tree()->Delete(load);
        const std::string begin = "*GRAVITY, Active=true, FollowsMesh=false, Amplitude=";
        const std::string end =
            ", UseAmplitude=false, UserSubroutine=false, ComponentX=0, ComponentY=0, "
            "ComponentZ=0\n";
        EXPECT_TRUE(text.starts_with(begin) && text.ends_with(end)) << text;
        return text.size() < begin.size() + end.size()
                   ? text
                   : text.substr(begin.size(), text.size() - begin.size() - end.size());
    }

    Feature* step = &AddStep("HLXStaticLPStepLT");
};

TEST_F(InputFileAmplitudes, AreNamedByAliasElseByTypeAndPlace)
{
    const Feature& bare = Make("HLXTabularAmplitudeLT", Model());
    const Feature& smooth = Make("HLXSmoothStepAmplitudeLT", Model());
    const Feature& second = Make("HLXTabularAmplitudeLT", Model());
    const Feature& named = Make("HLXTabularAmplitudeLT", Model(), "Ramp");
    const Feature& twin = Make("HLXTabularAmplitudeLT", Model(), "Twin");
    const Feature& otherTwin = Make("HLXSmoothStepAmplitudeLT", Model(), "Twin");
    EXPECT_EQ(ReferenceTo(bare), "HLXTabularAmplitudeLT[1]");
    EXPECT_EQ(ReferenceTo(smooth), "HLXSmoothStepAmplitudeLT[1]");
    EXPECT_EQ(ReferenceTo(second), "HLXTabularAmplitudeLT[2]");
    EXPECT_EQ(ReferenceTo(named), "\"Ramp\"");
    EXPECT_EQ(ReferenceTo(twin), "HLXTabularAmplitudeLT[4]");
    EXPECT_EQ(ReferenceTo(otherTwin), "HLXSmoothStepAmplitudeLT[2]");
}

TEST_F(InputFileAmplitudes, ThatAreGoneAreNone)
{
    Feature& ramp = Make("HLXTabularAmplitudeLT", Model(), "Ramp");
    Load("HLXGravity", *step).Set("Amplitude", vex::Reference{ramp.Id()});
    EXPECT_NE(TextOfLoads().find(" Amplitude=\"Ramp\","), std::string::npos);
    ramp.Tree()->Delete(ramp);
    EXPECT_NE(TextOfLoads().find(" Amplitude=none,"), std::string::npos);
}

TEST_F(InputFileAmplitudes, StandInTheModelWhateverCaseUsesThem)
{
    Feature& tabular = Make("HLXTabularAmplitudeLT", Model(), "Ramp");
    tabular.Set("Data", vex::Boxed<vex::DoubleTable>({2, {0, 0, 1, 0.5}}));
    tabular.Set("Smoothing", 0.25);
    Feature& smooth = Make("HLXSmoothStepAmplitudeLT", Model());
    smooth.Set("Data", vex::Boxed<vex::DoubleTable>({2, {0, 1, 2, 3}}));
    smooth.Set("TotalTime", true);
    EXPECT_EQ(Between(Text({2}), "** model", "** cases"),
              "*TABULAR AMPLITUDE, NAME=\"Ramp\", TotalTime=false, Data=[2x2], Smoothing=0.25\n"
              "0, 0\n"
              "1, 0.5\n"
              "*SMOOTH STEP AMPLITUDE, TotalTime=true, Data=[2x2]\n"
              "0, 1\n"
              "2, 3\n");
}

TEST_F(InputFileAmplitudes, AFilmConditionNamesBoth)
{
    const Feature& outside = Make("HLXTabularAmplitudeLT", Model());
    const Feature& coefficient = Make("HLXTabularAmplitudeLT", Model());
    Feature& film = Load("HLXFilmCondition", *step);
    film.Set("Amplitude", vex::Reference{outside.Id()});
    film.Set("FilmAmplitude", vex::Reference{coefficient.Id()});
    film.Set("Coefficients", vex::Boxed<vex::DoubleList>({1.2, 2.4, 3.5}));
    film.Set("Temperatures", vex::Boxed<vex::DoubleList>({10, 20, 30}));
    EXPECT_EQ(
        TextOfLoads(),
        "** not expected in a static perturbation step\n"
        "*FILM CONDITION, Active=true, FollowsMesh=false, Amplitude=HLXTabularAmplitudeLT[1], "
        "UseAmplitude=false, UserSubroutine=false, ReferenceTemperature=0, "
        "FilmCoefficient=0, UseFilmAmplitude=false, "
        "FilmAmplitude=HLXTabularAmplitudeLT[2], TemperatureDependent=false, FileName=\"\", "
        "Coefficients=[3], Temperatures=[3]\n"
        "1.2, 2.4, 3.5\n"
        "10, 20, 30\n");
}

}  // namespace
