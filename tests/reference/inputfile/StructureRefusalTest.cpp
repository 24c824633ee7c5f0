// SPDX-License-Identifier: Apache-2.0
// Structures that are refused, with the reason.
#include "reference/inputfile/StructureFixture.h"

namespace {

using vex::Document;
using vex::Feature;

class InputFileStructureRefusal : public hlxtest::StructureTest
{};

TEST_F(InputFileStructureRefusal, AMissingLinkedDocumentIsRefused)
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

TEST_F(InputFileStructureRefusal, ADocumentOfAnotherKindThanTheNodeSaysIsRefused)
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

TEST_F(InputFileStructureRefusal, AMissingDocumentOfANodeIsRefused)
{
    Feature& root = Product();
    Use(root, "Bolt.1", "M6", folder.File("gone.VEXPart"));
    Link(SaveProduct(root, "top"));
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("gone.VEXPart' of 'Bolt.1' cannot be opened ("), std::string::npos)
        << reason;
    EXPECT_NE(reason.find("top.VEXProduct'. Nothing was written\n"), std::string::npos) << reason;
}

TEST_F(InputFileStructureRefusal, AProductThatHoldsItselfIsRefused)
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

TEST_F(InputFileStructureRefusal, AProductDocumentWithoutAContainerIsRefused)
{
    Document& empty = New("VEXProduct");
    empty.Tree().Delete(*empty.SpecContainer());
    Save(empty, "empty.VEXProduct");
    Link(empty.Path());
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("empty.VEXProduct' is no product or part; "), std::string::npos)
        << reason;
}

TEST_F(InputFileStructureRefusal, ANodeThatLeadsToAnAnalysisIsRefused)
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

TEST_F(InputFileStructureRefusal, APlacementOfAnotherLengthIsRefused)
{
    Feature& root = Product();
    Use(root, "Bolt.1", "M6", Part("bolt", "Bolt"), {1, 2, 3});
    Link(SaveProduct(root, "top"));
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("the placement of 'Bolt.1' has 3 numbers and not 12; "),
              std::string::npos)
        << reason;
}

TEST_F(InputFileStructureRefusal, AStructureTooDeepIsRefused)
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
TEST_F(InputFileStructureRefusal, AStructureThatMultipliesIsRefused)
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

/// What is no node is passed over, but takes its time.
TEST_F(InputFileStructureRefusal, AProductFullOfOtherFeaturesUsedOftenIsRefused)
{
    Feature& full = Product();
    for (int i = 0; i < 2'000; ++i) {
        full.Tree()->Create(vex::LateTypes::Instance().Require("HLXContainerLT"), &full);
    }
    const std::string below = SaveProduct(full, "full");
    Feature& root = Product();
    for (int i = 0; i < 501; ++i) {
        Use(root, "use" + std::to_string(i), "", below);
    }
    Link(SaveProduct(root, "top"));
    const std::string reason = Refusal();
    EXPECT_NE(reason.find("more than a million nodes; "), std::string::npos) << reason;
}

}  // namespace
