// SPDX-License-Identifier: Apache-2.0
// Parts and instances in input files, from product documents made here.
#include "reference/inputfile/StructureFixture.h"

namespace {

using vex::Document;
using vex::DocumentSession;
using vex::Feature;

class InputFileStructure : public hlxtest::StructureTest
{};

TEST_F(InputFileStructure, PartsThenInstancesWithTheirPlaces)
{
    const std::string bolt = Part("bolt", "Bolt");
    const std::string plate = Part("plate", "Plate");
    Feature& root = Product();
    Use(root, "Bolt.1", "M6", bolt, {1, 0, 0, 25, 0, 1, 0, -0.5, 0, 0, 1, 0});
    Use(root, "Plate.1", "", plate, {0, -1, 0, 1, 1, 0, 0, 2, 0, 0, 1, 3});
    Use(root, "Bolt.2", "another number", bolt);
    Link(SaveProduct(root, "top"));
    EXPECT_EQ(TextOfStructure(),
              "*PART, NAME=\"M6\"\n"
              "** mesh: none\n"
              "*END PART\n"
              "*PART, NAME=\"Plate\"\n"
              "** mesh: none\n"
              "*END PART\n"
              "*ASSEMBLY\n"
              "*INSTANCE, NAME=\"Bolt.1\", PART=\"M6\"\n"
              "1, 0, 0, 25\n"
              "0, 1, 0, -0.5\n"
              "0, 0, 1, 0\n"
              "*END INSTANCE\n"
              "*INSTANCE, NAME=\"Plate.1\", PART=\"Plate\"\n"
              "0, -1, 0, 1\n"
              "1, 0, 0, 2\n"
              "0, 0, 1, 3\n"
              "*END INSTANCE\n"
              "*INSTANCE, NAME=\"Bolt.2\", PART=\"M6\"\n"
              "1, 0, 0, 0\n"
              "0, 1, 0, 0\n"
              "0, 0, 1, 0\n"
              "*END INSTANCE\n"
              "*END ASSEMBLY\n");
}

TEST_F(InputFileStructure, FlatHasNoKeywordOfStructure)
{
    const std::string bolt = Part("bolt", "Bolt");
    Feature& root = Product();
    Use(root, "Bolt.1", "M6", bolt);
    Use(root, "Bolt.2\n*STEP", "M6", bolt);
    Link(SaveProduct(root, "top"));
    SetFlat(true);
    EXPECT_EQ(TextOfStructure(),
              "** instance \"Bolt.1\" of part \"M6\"\n"
              "** mesh: none\n"
              "** instance \"Bolt.2\\n*STEP\" of part \"M6\"\n"
              "** mesh: none\n");
}

TEST_F(InputFileStructure, SubAssembliesAreResolvedIntoNamesAndPlaces)
{
    const std::string bolt = Part("bolt", "Bolt");
    Feature& sub = Product();
    Feature& group = Use(sub, "Group", "G", "", {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 7});
    Use(group, "Bolt.1", "M6", bolt, {1, 0, 0, 1, 0, 1, 0, 2, 0, 0, 1, 3});
    const std::string subPath = SaveProduct(sub, "sub");
    Feature& root = Product();
    Use(root, "Left", "Sub", subPath, {0, -1, 0, 10, 1, 0, 0, 20, 0, 0, 1, 30});
    Use(root, "", "Sub", subPath);
    Link(SaveProduct(root, "top"));
    EXPECT_EQ(TextOfStructure(),
              "*PART, NAME=\"M6\"\n"
              "** mesh: none\n"
              "*END PART\n"
              "*ASSEMBLY\n"
              "*INSTANCE, NAME=\"Left/Group/Bolt.1\", PART=\"M6\"\n"
              "0, -1, 0, 8\n"
              "1, 0, 0, 21\n"
              "0, 0, 1, 40\n"
              "*END INSTANCE\n"
              "*INSTANCE, NAME=\"Sub/Group/Bolt.1\", PART=\"M6\"\n"
              "1, 0, 0, 1\n"
              "0, 1, 0, 2\n"
              "0, 0, 1, 10\n"
              "*END INSTANCE\n"
              "*END ASSEMBLY\n");
}

TEST_F(InputFileStructure, NamesThatRepeatAreNumbered)
{
    const std::string one = Part("one", "Bolt");
    const std::string two = Part("two", "Bolt");
    Feature& root = Product();
    Use(root, "Bolt", "", one);
    Use(root, "Bolt (2)", "", two);
    Use(root, "Bolt", "", two);
    Link(SaveProduct(root, "top"));
    SetFlat(true);
    EXPECT_EQ(TextOfStructure(),
              "** instance \"Bolt\" of part \"Bolt\"\n"
              "** mesh: none\n"
              "** instance \"Bolt (2)\" of part \"Bolt (2)\"\n"
              "** mesh: none\n"
              "** instance \"Bolt (3)\" of part \"Bolt (2)\"\n"
              "** mesh: none\n");
}

TEST_F(InputFileStructure, APartWithoutAProductHasOneInstance)
{
    Link(Part("bolt", "Bolt"));
    SetFlat(true);
    EXPECT_EQ(TextOfStructure(), "** instance \"Bolt.1\" of part \"Bolt\"\n** mesh: none\n");
}

TEST_F(InputFileStructure, AnAnalysisAmongTheLinksIsNoStructure)
{
    Document& other = New("VEXAnalysis");
    Save(other, "global.VEXAnalysis");
    Link(other.Path());
    EXPECT_EQ(TextOfStructure(), "*ASSEMBLY\n*END ASSEMBLY\n");
}

TEST_F(InputFileStructure, OpensDocumentsThatAreNotOpen)
{
    Feature& root = Product();
    Use(root, "Bolt.1", "M6", Part("bolt", "Bolt"));
    const std::string path = SaveProduct(root, "top");
    std::string error;
    DocumentSession& session = DocumentSession::Instance();
    for (const std::string& each : {path, folder.File("bolt.VEXPart")}) {
        ASSERT_EQ(session.Remove(*session.Find(each), true, error), S_OK) << error;
    }
    EXPECT_EQ(session.Find(folder.File("bolt.VEXPart")), nullptr);
    Link(path);
    SetFlat(true);
    EXPECT_EQ(TextOfStructure(), "** instance \"Bolt.1\" of part \"M6\"\n** mesh: none\n");
}

}  // namespace
