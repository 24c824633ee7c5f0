// SPDX-License-Identifier: Apache-2.0
// Which regions an input file defines, once each and in what order, and which it refuses.
#include "reference/inputfile/SupportFixture.h"

#include <algorithm>

namespace {

using vex::Feature;

class InputFileRegions : public hlxtest::SupportTest
{
protected:
    /// The definitions of the deck of these cases, in its order.
    std::vector<std::string> Definitions(const std::vector<int>& cases = {1})
    {
        const std::string text = Text(cases);
        const std::string keyword = "\n*REGION, ";
        std::vector<std::string> lines;
        for (std::size_t at = 0; (at = text.find(keyword, at)) != std::string::npos;) {
            at += keyword.size();
            lines.push_back(text.substr(at, text.find('\n', at) - at));
        }
        return lines;
    }

    using Lines = std::vector<std::string>;
    std::string box = hlxtest::PartSpecimen(folder, "box");
    std::string cylinder = hlxtest::PartSpecimen(folder, "cylinder");
};

TEST_F(InputFileRegions, StandByDimensionThenIndexWhateverTheOrderOfTheirUses)
{
    Feature& gravity = Load("HLXGravity", AddStep("HLXStaticLPStepLT"));
    for (const auto& [dimension, index] : std::vector<std::pair<int, int>>{
             {3, 1}, {1, 10}, {1, 9}, {2, 6}, {0, 8}, {2, 1}, {1, 12}, {0, 1}}) {
        Region(gravity, box, dimension, index);
    }
    LinkToUses(box, {"Box.1"});
    const Lines expected = {
        "NAME=\"Vertex-1\", DIMENSION=0, INDEX=1", "NAME=\"Vertex-8\", DIMENSION=0, INDEX=8",
        "NAME=\"Edge-9\", DIMENSION=1, INDEX=9",   "NAME=\"Edge-10\", DIMENSION=1, INDEX=10",
        "NAME=\"Edge-12\", DIMENSION=1, INDEX=12", "NAME=\"Face-1\", DIMENSION=2, INDEX=1",
        "NAME=\"Face-6\", DIMENSION=2, INDEX=6",   "NAME=\"Body-1\", DIMENSION=3, INDEX=1"};
    EXPECT_EQ(Definitions(), expected);
}

TEST_F(InputFileRegions, UsedManyTimesAreDefinedOnce)
{
    for (const int analysisCase : {1, 2}) {
        const Feature& step = AddStep("HLXStaticLPStepLT", "Loading", analysisCase);
        for (const char* const type : {"HLXPressure", "HLXGravity"}) {
            Feature& load = Load(type, step);
            Region(load, box, 2, 5);
            Region(load, box, 2, 5);
        }
    }
    LinkToUses(box, {"Box.1"});
    EXPECT_EQ(Definitions({1, 2}), Lines{"NAME=\"Face-5\", DIMENSION=2, INDEX=5"});
}

TEST_F(InputFileRegions, OfOneFileLinkedInTwoWaysAreDefinedOnce)
{
    Feature& gravity = Load("HLXGravity", AddStep("HLXStaticLPStepLT"));
    Region(gravity, box, 2, 5);
    Region(gravity, box, 2, 5)
        .Set("Document", vex::Boxed<vex::DocumentLink>({folder.Path() + "/./box.VEXPart"}));
    LinkToUses(box, {"Box.1"});
    EXPECT_EQ(Definitions(), Lines{"NAME=\"Face-5\", DIMENSION=2, INDEX=5"});
}

TEST_F(InputFileRegions, StandWithTheirOwnParts)
{
    Feature& gravity = Load("HLXGravity", AddStep("HLXStaticLPStepLT"));
    Region(gravity, cylinder, 2, 2);
    Region(gravity, box, 2, 2);
    Feature& root = Product();
    Use(root, "Box.1", "B", box);
    Use(root, "Cylinder.1", "C", cylinder);
    Use(root, "Box.2", "B", box);
    Link(SaveProduct(root, "top"));
    const std::string parts = Between(Text(), "** structure", "*ASSEMBLY");
    EXPECT_EQ(parts,
              "*PART, NAME=\"B\"\n"
              "** mesh: none\n"
              "*REGION, NAME=\"Face-2\", DIMENSION=2, INDEX=2\n"
              "*END PART\n"
              "*PART, NAME=\"C\"\n"
              "** mesh: none\n"
              "*REGION, NAME=\"Face-2\", DIMENSION=2, INDEX=2\n"
              "*END PART\n");
    const std::string loads = TextOfLoads();
    EXPECT_EQ(loads.substr(loads.find('\n') + 1),
              SupportLine(cylinder, 2, 2) + "\"Cylinder.1/Face-2\"\n" + SupportLine(box, 2, 2) +
                  "\"Box.1/Face-2\"\n"
                  "\"Box.2/Face-2\"\n"
                  "*END GRAVITY\n");
    SetFlat(true);
    const Lines flat = {"NAME=\"Box.1/Face-2\", DIMENSION=2, INDEX=2",
                        "NAME=\"Cylinder.1/Face-2\", DIMENSION=2, INDEX=2",
                        "NAME=\"Box.2/Face-2\", DIMENSION=2, INDEX=2"};
    EXPECT_EQ(Definitions(), flat);
}

TEST_F(InputFileRegions, OfCasesThatAreNotWrittenAreNotDefined)
{
    Region(Load("HLXGravity", AddStep("HLXStaticLPStepLT", "Loading", 1)), box, 2, 1);
    Region(Load("HLXGravity", AddStep("HLXStaticLPStepLT", "Loading", 2)), box, 2, 2);
    LinkToUses(box, {"Box.1"});
    EXPECT_EQ(Definitions({2}), Lines{"NAME=\"Face-2\", DIMENSION=2, INDEX=2"});
}

TEST_F(InputFileRegions, OfTheModelAreDefinedToo)
{
    Region(Make("HLXRigidBodyConstraintLT", Model()), box, 3, 1);
    LinkToUses(box, {"Box.1"});
    EXPECT_EQ(Definitions(), Lines{"NAME=\"Body-1\", DIMENSION=3, INDEX=1"});
    EXPECT_EQ(Between(Text(), "** model", "** cases"),
              "*RIGID BODY, CONTENTS, Active=true, FollowsMesh=false, "
              "ReferenceAtCenterOfMass=false, SAMInertiaMass=0\n" +
                  SupportLine(box, 3, 1) +
                  "\"Box.1/Body-1\"\n"
                  "*END RIGID BODY\n");
}

TEST_F(InputFileRegions, OfWhatIsNotWrittenAreNotLookedFor)
{
    Region(Make("HLXJobLT", Model()), box, 2, 1)
        .Set("Document", vex::Boxed<vex::DocumentLink>({folder.File("gone.VEXPart")}));
    LinkToUses(box, {"Box.1"});
    EXPECT_EQ(Definitions(), Lines());
}

TEST_F(InputFileRegions, OfLateTypesThatExtendASupportAreRegions)
{
    std::string error;
    if (vex::LateTypes::Instance().Find("TstSeam") == nullptr) {
        ASSERT_TRUE(vex::LateTypes::Instance().Add(
            {{"TstSeam",
              "VEXSamRegion",
              {{"Widths", vex::ValueKind::List, vex::Boxed<vex::DoubleList>({1.5})}}}},
            error))
            << error;
    }
    Region(Load("HLXGravity", AddStep("HLXStaticLPStepLT")), box, 1, 2, "TstSeam");
    LinkToUses(box, {"Box.1"});
    EXPECT_EQ(Definitions(), Lines{"NAME=\"Edge-2\", DIMENSION=1, INDEX=2"});
    const std::string loads = TextOfLoads();
    EXPECT_EQ(loads.substr(loads.find('\n') + 1),
              "*FEATURE, TYPE=TstSeam, Document=\"box.VEXPart\", Dimension=1, Index=2, Widths=[1]\n"
              "1.5\n"
              "\"Box.1/Edge-2\"\n"
              "*END GRAVITY\n");
}

TEST_F(InputFileRegions, AHundredThousandSupportsAreWrittenLikeAny)
{
    const Feature& step = AddStep("HLXStaticLPStepLT");
    const std::string digest = DigestOf(box);
    for (int i = 0; i < 100'000; ++i) {
        Feature& support = Make("VEXSamSupport", Load("HLXPressure", step));
        support.Set("Document", vex::Boxed<vex::DocumentLink>({box, vex::DocumentType::Part}));
        support.Set("Dimension", std::int64_t{2});
        support.Set("Index", std::int64_t{1 + i % 6});
        support.Set("Shape", vex::Boxed<std::string>(digest));
    }
    LinkToUses(box, {"Box.1", "Box.2"});
    EXPECT_EQ(Definitions().size(), 6u);
    const std::string loads = TextOfLoads();
    EXPECT_EQ(std::ranges::count(loads, '\n'), 500'000);
    EXPECT_TRUE(loads.ends_with("\"Box.1/Face-4\"\n\"Box.2/Face-4\"\n*END PRESSURE\n"));
}

}  // namespace
