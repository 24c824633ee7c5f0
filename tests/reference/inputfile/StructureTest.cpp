// SPDX-License-Identifier: Apache-2.0
// Parts and instances in input files, from product documents made here.
#include "reference/inputfile/InputFileFixture.h"

namespace {

using vex::Document;
using vex::DocumentSession;
using vex::Feature;

const vex::DoubleList identity{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0};

class InputFileStructure : public hlxtest::InputFileTest
{
protected:
    ~InputFileStructure() override
    {
        // The analysis goes first: it links to the others.
        VEXDocumentServices::Remove(*document.Release(), 1);
        while (!DocumentSession::Instance().Documents().empty()) {
            std::string error;
            DocumentSession::Instance().Remove(*DocumentSession::Instance().Documents().front(),
                                               true, error);
        }
    }

    Document& New(const char* type)
    {
        Document* made = nullptr;
        std::string error;
        EXPECT_EQ(DocumentSession::Instance().New(type, made, error), S_OK) << error;
        return *made;
    }

    void Save(Document& made, const std::string& name)
    {
        std::string error;
        EXPECT_EQ(DocumentSession::Instance().SaveAs(made, folder.File(name), "", true, error),
                  S_OK)
            << error;
    }

    /// The one object of a new product or part document.
    static Feature& Object(Document& made) { return *made.SpecContainer()->Children().front(); }

    /// A part document `name`.VEXPart; answers its path.
    std::string Part(const std::string& name, std::string_view alias)
    {
        Document& made = New("VEXPart");
        EXPECT_EQ(Object(made).SetAlias(alias), S_OK);
        Save(made, name + ".VEXPart");
        return made.Path();
    }

    /// The root node of a new product document.
    Feature& Product() { return Object(New("VEXProduct")); }

    static Feature& Use(Feature& parent, std::string_view alias, std::string partNumber,
                        const std::string& path, const vex::DoubleList& placement = identity)
    {
        Feature& node = Make("VEXProductNode", parent, alias);
        node.Set("PartNumber", vex::Boxed<std::string>(std::move(partNumber)));
        node.Set("Placement", vex::Boxed<vex::DoubleList>(placement));
        if (!path.empty()) {
            node.Set("Document", vex::Boxed<vex::DocumentLink>({path}));
        }
        return node;
    }

    std::string SaveProduct(Feature& root, const std::string& name)
    {
        Document& made = root.Tree()->Owner();
        Save(made, name + ".VEXProduct");
        return made.Path();
    }

    /// Links the analysis to a document, whether or not it is there.
    void Link(const std::string& path)
    {
        Make("VEXSamDocumentLink", *Model().Parent())
            .Set("Document", vex::Boxed<vex::DocumentLink>({path}));
    }

    std::string TextOfStructure() { return Between(Text(), "** structure", "** model"); }

    /// What the writer says when it refuses; nothing was written then.
    std::string Refusal()
    {
        const std::string path = folder.File("refused.inp");
        EXPECT_EQ(Write(path, {Entry(1)}), E_FAIL);
        EXPECT_FALSE(hlxtest::FileExists(path));
        return said;
    }
};

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

TEST_F(InputFileStructure, AMissingLinkedDocumentIsRefused)
{
    Link(folder.File("gone.VEXProduct"));
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("gone.VEXProduct"), std::string::npos) << reason;
    EXPECT_NE(
        reason.find(
            "vex: HLXIIfwTraverser::WriteInputFile: linked document 1 of the analysis cannot be "
            "opened; put it back in its place or link the analysis anew. Nothing was "
            "written\n"),
        std::string::npos)
        << reason;
}

TEST_F(InputFileStructure, ADocumentOfAnotherKindThanTheNodeSaysIsRefused)
{
    const std::string bolt = Part("bolt", "Bolt");
    Feature& root = Product();
    Use(root, "Bolt.1", "M6", bolt);
    Use(root, "Bolt.2", "M6", bolt)
        .Set("Document", vex::Boxed<vex::DocumentLink>({bolt, vex::DocumentType::Product}));
    Link(SaveProduct(root, "top"));
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("bolt.VEXPart' of 'Bolt.2' cannot be opened ('" + bolt +
                          "': it is a document of type VEXPart, and the link to it says "
                          "VEXProduct. "),
              std::string::npos)
        << reason;
}

TEST_F(InputFileStructure, AMissingDocumentOfANodeIsRefused)
{
    Feature& root = Product();
    Use(root, "Bolt.1", "M6", folder.File("gone.VEXPart"));
    Link(SaveProduct(root, "top"));
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("gone.VEXPart' of 'Bolt.1' cannot be opened ("), std::string::npos)
        << reason;
    EXPECT_NE(reason.find("top.VEXProduct'. Nothing was written\n"), std::string::npos) << reason;
}

TEST_F(InputFileStructure, AProductThatHoldsItselfIsRefused)
{
    Feature& root = Product();
    const std::string path = SaveProduct(root, "top");
    Feature& sub = Product();
    Use(sub, "Up.1", "Top", path);
    Use(root, "Down.1", "Sub", SaveProduct(sub, "sub"));
    Link(path);
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("top.VEXProduct' holds itself; "), std::string::npos) << reason;
}

TEST_F(InputFileStructure, AProductDocumentWithoutAContainerIsRefused)
{
    Document& empty = New("VEXProduct");
    empty.Tree().Delete(*empty.SpecContainer());
    Save(empty, "empty.VEXProduct");
    Link(empty.Path());
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("empty.VEXProduct' is no product or part; "), std::string::npos)
        << reason;
}

TEST_F(InputFileStructure, ANodeThatLeadsToAnAnalysisIsRefused)
{
    Document& other = New("VEXAnalysis");
    Save(other, "global.VEXAnalysis");
    Feature& root = Product();
    Use(root, "Odd.1", "Odd", other.Path());
    Link(SaveProduct(root, "top"));
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("global.VEXAnalysis' is no product or part; "), std::string::npos)
        << reason;
}

TEST_F(InputFileStructure, APlacementOfAnotherLengthIsRefused)
{
    Feature& root = Product();
    Use(root, "Bolt.1", "M6", Part("bolt", "Bolt"), {1, 2, 3});
    Link(SaveProduct(root, "top"));
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("the placement of 'Bolt.1' has 3 numbers and not 12; "),
              std::string::npos)
        << reason;
}

TEST_F(InputFileStructure, AStructureTooDeepIsRefused)
{
    Feature& root = Product();
    Feature* last = &root;
    for (int i = 0; i < 10'000; ++i) {
        last = &Use(*last, "N", "N", "");
    }
    Link(SaveProduct(root, "top"));
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("deeper than 256 levels; "), std::string::npos) << reason;
}

/// Twenty-two products of which each uses the next one twice: four million uses in a small file.
TEST_F(InputFileStructure, AStructureThatMultipliesIsRefused)
{
    std::string below = Part("bolt", "Bolt");
    for (int i = 0; i < 22; ++i) {
        Feature& root = Product();
        Use(root, "a", "", below);
        Use(root, "b", "", below);
        below = SaveProduct(root, "level" + std::to_string(i));
    }
    Link(below);
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("more than a million nodes; "), std::string::npos) << reason;
}

}  // namespace
