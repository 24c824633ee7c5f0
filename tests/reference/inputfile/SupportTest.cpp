// SPDX-License-Identifier: Apache-2.0
// Conditions with their supports in input files, whole decks typed by hand.
#include "VEXEntities.h"
#include "VEXMechanicalPart.h"
#include "reference/inputfile/SupportFixture.h"

#include <algorithm>

namespace {

using vex::Feature;

class InputFileSupports : public hlxtest::SupportTest
{
protected:
    std::string box = hlxtest::PartSpecimen(folder, "box");
};

const std::string common =
    "CONTENTS, Active=true, FollowsMesh=false, Amplitude=none, UseAmplitude=false, "
    "UserSubroutine=false, ";

TEST_F(InputFileSupports, OfEveryKindOfLoadInBothForms)
{
    const Feature& step = AddStep("HLXStaticLPStepLT");
    Region(Load("HLXPressure", step), box, 2, 1)
        .Set("Connector", vex::Boxed<std::string>(std::string("GeometrySmartConnector")));
    Region(Load("HLXGravity", step), box, 3, 1);
    Feature& rotation = Load("HLXRotationalBodyForce", step, "Spin");
    rotation.Set("AxisOfRotation", vex::Reference{Region(rotation, box, 1, 12, "VEXSamAxis").Id()});
    Region(rotation, box, 3, 1);
    Region(Load("HLXConcentratedForce", step), box, 0, 8);
    Region(Load("HLXConcHeatFlux", step), box, 0, 2);
    Region(Load("HLXSurfaceHeatFlux", step), box, 2, 6);
    Region(Load("HLXBodyHeatFlux", step), box, 3, 1);
    Region(Load("HLXFilmCondition", step), box, 2, 1);
    LinkToUses(box, {"Box.1"});

    const std::string comment = "** not expected in a static perturbation step\n";
    const std::string body = SupportLine(box, 3, 1) + "\"Box.1/Body-1\"\n";
    const std::string steps = Step(
        "*PRESSURE, " + common + "Pressure=0\n" + SupportLine(box, 2, 1, "GeometrySmartConnector") +
        "\"Box.1/Face-1\"\n"
        "*END PRESSURE\n"
        "*GRAVITY, " +
        common + "ComponentX=0, ComponentY=0, ComponentZ=0\n" + body +
        "*END GRAVITY\n"
        "*ROTATIONAL BODY FORCE, NAME=\"Spin\", " +
        common +
        "Velocity=0, Acceleration=0, AxisOfRotation=\"Analysis Case.1\"/HLXHacSimHistLT[1]/"
        "\"Loading\"/HLXLoadContainerLT[1]/\"Spin\"/VEXSamAxis[1]\n"
        "*AXIS, Document=\"box.VEXPart\", Dimension=1, Index=12\n"
        "\"Box.1/Edge-12\"\n" +
        body +
        "*END ROTATIONAL BODY FORCE\n"
        "*CONCENTRATED FORCE, " +
        common + "ForceX=0, ForceY=0, ForceZ=0\n" + SupportLine(box, 0, 8) +
        "\"Box.1/Vertex-8\"\n"
        "*END CONCENTRATED FORCE\n" +
        comment + "*CONCENTRATED HEAT FLUX, " + common + "Magnitude=0\n" + SupportLine(box, 0, 2) +
        "\"Box.1/Vertex-2\"\n"
        "*END CONCENTRATED HEAT FLUX\n" +
        comment + "*SURFACE HEAT FLUX, " + common + "Magnitude=0\n" + SupportLine(box, 2, 6) +
        "\"Box.1/Face-6\"\n"
        "*END SURFACE HEAT FLUX\n" +
        comment + "*BODY HEAT FLUX, " + common + "Magnitude=0\n" + body + "*END BODY HEAT FLUX\n" +
        comment + "*FILM CONDITION, " + common +
        "ReferenceTemperature=0, FilmCoefficient=0, UseFilmAmplitude=false, "
        "FilmAmplitude=none, TemperatureDependent=false, FileName=\"\", Coefficients=[0], "
        "Temperatures=[0]\n" +
        SupportLine(box, 2, 1) +
        "\"Box.1/Face-1\"\n"
        "*END FILM CONDITION\n");
    EXPECT_EQ(Text(), Deck(Structured("*REGION, NAME=\"Vertex-2\", DIMENSION=0, INDEX=2\n"
                                      "*REGION, NAME=\"Vertex-8\", DIMENSION=0, INDEX=8\n"
                                      "*REGION, NAME=\"Edge-12\", DIMENSION=1, INDEX=12\n"
                                      "*REGION, NAME=\"Face-1\", DIMENSION=2, INDEX=1\n"
                                      "*REGION, NAME=\"Face-6\", DIMENSION=2, INDEX=6\n"
                                      "*REGION, NAME=\"Body-1\", DIMENSION=3, INDEX=1\n",
                                      {"Box.1"}),
                           steps));
    SetFlat(true);
    EXPECT_EQ(Text(), Deck("** instance \"Box.1\" of part \"Part-1\"\n"
                           "** mesh: none\n"
                           "*REGION, NAME=\"Box.1/Vertex-2\", DIMENSION=0, INDEX=2\n"
                           "*REGION, NAME=\"Box.1/Vertex-8\", DIMENSION=0, INDEX=8\n"
                           "*REGION, NAME=\"Box.1/Edge-12\", DIMENSION=1, INDEX=12\n"
                           "*REGION, NAME=\"Box.1/Face-1\", DIMENSION=2, INDEX=1\n"
                           "*REGION, NAME=\"Box.1/Face-6\", DIMENSION=2, INDEX=6\n"
                           "*REGION, NAME=\"Box.1/Body-1\", DIMENSION=3, INDEX=1\n",
                           steps));
}

TEST_F(InputFileSupports, OfAPartUsedTwiceNameItsInstancesInTheirOrder)
{
    Region(Load("HLXGravity", AddStep("HLXStaticLPStepLT")), box, 2, 3);
    LinkToUses(box, {"Right", "Left"});
    const std::string steps =
        Step("*GRAVITY, " + common + "ComponentX=0, ComponentY=0, ComponentZ=0\n" +
             SupportLine(box, 2, 3) +
             "\"Right/Face-3\"\n"
             "\"Left/Face-3\"\n"
             "*END GRAVITY\n");
    EXPECT_EQ(Text(), Deck(Structured("*REGION, NAME=\"Face-3\", DIMENSION=2, INDEX=3\n",
                                      {"Right", "Left"}),
                           steps));
    SetFlat(true);
    EXPECT_EQ(Text(), Deck("** instance \"Right\" of part \"Part-1\"\n"
                           "** mesh: none\n"
                           "*REGION, NAME=\"Right/Face-3\", DIMENSION=2, INDEX=3\n"
                           "** instance \"Left\" of part \"Part-1\"\n"
                           "** mesh: none\n"
                           "*REGION, NAME=\"Left/Face-3\", DIMENSION=2, INDEX=3\n",
                           steps));
}

TEST_F(InputFileSupports, OfAPartThatIsNotInTheStructureAreSaidInAComment)
{
    const std::string cylinder = hlxtest::PartSpecimen(folder, "cylinder");
    Feature& gravity = Load("HLXGravity", AddStep("HLXStaticLPStepLT"));
    Region(gravity, cylinder, 2, 2);
    Region(gravity, box, 0, 1);
    LinkToUses(box, {"Box.1"});
    const std::string steps = Step(
        "*GRAVITY, " + common + "ComponentX=0, ComponentY=0, ComponentZ=0\n" +
        SupportLine(cylinder, 2, 2) +
        "** not in the structure: \"Face-2\" of \"cylinder.VEXPart\"\n" + SupportLine(box, 0, 1) +
        "\"Box.1/Vertex-1\"\n"
        "*END GRAVITY\n");
    EXPECT_EQ(
        Text(),
        Deck(Structured("*REGION, NAME=\"Vertex-1\", DIMENSION=0, INDEX=1\n", {"Box.1"}), steps));
}

TEST_F(InputFileSupports, OfAnAnalysisWithoutLinksAreSaidInComments)
{
    Region(Load("HLXGravity", AddStep("HLXStaticLPStepLT")), box, 3, 1);
    const std::string steps =
        Step("*GRAVITY, " + common + "ComponentX=0, ComponentY=0, ComponentZ=0\n" +
             SupportLine(box, 3, 1) +
             "** not in the structure: \"Body-1\" of \"box.VEXPart\"\n"
             "*END GRAVITY\n");
    EXPECT_EQ(Text(), Deck("*ASSEMBLY\n*END ASSEMBLY\n", steps));
    SetFlat(true);
    EXPECT_EQ(Text(), Deck("", steps));
}

TEST_F(InputFileSupports, NoNameForgesALine)
{
    const std::string hostile = hlxtest::PartSpecimen(folder, "box") + "\n*END CASE\".VEXPart";
    hlxtest::WriteFile(hostile, hlxtest::ReadFile(box));
    const Feature& step = AddStep("HLXStaticLPStepLT");
    Region(Load("HLXGravity", step, "\"\n*STEP"), box, 2, 1);
    Region(Load("HLXGravity", step), hostile, 2, 1);
    LinkToUses(box, {"Box\n** \"\\"});
    const std::string values = "ComponentX=0, ComponentY=0, ComponentZ=0\n";
    const std::string quoted = "\"box.VEXPart\\n*END CASE\\\".VEXPart\"";
    const std::string steps =
        Step("*GRAVITY, NAME=\"\\\"\\n*STEP\", " + common + values + SupportLine(box, 2, 1) +
             "\"Box\\n** \\\"\\\\/Face-1\"\n"
             "*END GRAVITY\n"
             "*GRAVITY, " +
             common + values + "*SUPPORT, Document=" + quoted +
             ", Dimension=2, Index=1, Connector=\"\"\n" +
             "** not in the structure: \"Face-1\" of " + quoted +
             "\n"
             "*END GRAVITY\n");
    SetFlat(true);
    EXPECT_EQ(Text(), Deck("** instance \"Box\\n** \\\"\\\\\" of part \"Part-1\"\n"
                           "** mesh: none\n"
                           "*REGION, NAME=\"Box\\n** \\\"\\\\/Face-1\", DIMENSION=2, INDEX=1\n",
                           steps));
}

/// Through the platform, and again after the analysis was stored and opened.
TEST_F(InputFileSupports, ThatThePlatformAddedAreTheSameAfterReopening)
{
    Feature& gravity = Load("HLXGravity", AddStep("HLXStaticLPStepLT"));
    VEXDocument* part = nullptr;
    ASSERT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(box), part, 0), S_OK);
    Feature& mechanicalPart = Object(*vex::Document::From(part));
    const auto body = std::ranges::find_if(mechanicalPart.Children(), [](const auto* child) {
        return child->Kind().name == "VEXMechanicalTool";
    });
    const auto supports = vex::FaceOf<VEXISamAnalysisSupport>(&gravity);
    ASSERT_TRUE(supports);
    ASSERT_EQ(supports->AddSupport(vex::FaceOf<VEXILinkableObject>(*body),
                                   vex::FaceOf<VEXISpecObject>(&mechanicalPart),
                                   "GeometrySmartConnector"),
              S_OK);
    LinkToUses(box, {"Box.1"});
    document.SaveAs(folder.File("analysis.VEXAnalysis"));
    const std::string expected =
        Deck(Structured("*REGION, NAME=\"Body-1\", DIMENSION=3, INDEX=1\n", {"Box.1"}),
             Step("*GRAVITY, " + common + "ComponentX=0, ComponentY=0, ComponentZ=0\n" +
                  SupportLine(box, 3, 1, "GeometrySmartConnector") +
                  "\"Box.1/Body-1\"\n"
                  "*END GRAVITY\n"));
    EXPECT_EQ(Text(), expected);
    ASSERT_EQ(VEXDocumentServices::Remove(*document.Release(), 1), S_OK);
    ASSERT_EQ(VEXDocumentServices::OpenDocument(
                  VEXUnicodeString(folder.File("analysis.VEXAnalysis")), document.Get(), 0),
              S_OK);
    EXPECT_EQ(Text(), expected);
}

}  // namespace
