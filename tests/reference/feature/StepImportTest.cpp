// SPDX-License-Identifier: Apache-2.0
// STEP files as documents, and the shapes of parts.
#include "host/product/StepImport.h"

#include "TestDocument.h"
#include "host/product/PartGeometry.h"
#include "host/product/ProductStructure.h"
#include "host/system/FileOperations.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <filesystem>

namespace {

using namespace vex;
using featuretest::Open;
using testing::ElementsAre;
using testing::HasSubstr;

const std::string assemblyFile = HLX_SOURCE_DIR "/samples/bracket_assembly.step";
const std::string blockFile = HLX_SOURCE_DIR "/tests/reference/topology/data/block.step";

class StepImportTest : public testing::Test
{
protected:
    bool Import(const std::string& file, std::string_view baseName)
    {
        return ImportStep(
            file, folder.Path(), baseName, rootPath, error,
            [&](std::size_t done, std::size_t total, const std::string& name) {
                progress.push_back(std::to_string(done) + "/" + std::to_string(total) + " " + name);
            });
    }

    hlxtest::TemporaryFolder folder;
    featuretest::ClosesAll closesAll;
    std::string rootPath = "before";
    std::string error;
    std::vector<std::string> progress;
};

TEST_F(StepImportTest, AnAssemblyBecomesAProductWithOnePartADocument)
{
    ASSERT_TRUE(Import(assemblyFile, "demo")) << error;
    EXPECT_EQ(rootPath, folder.File("demo.VEXProduct"));
    EXPECT_THAT(folder.Names(),
                ElementsAre("Bolt.VEXPart", "Bracket.VEXPart", "Plate.VEXPart", "demo.VEXProduct"));
    ASSERT_EQ(progress.size(), 4U);
    EXPECT_EQ(progress.back(), "3/4 demo.VEXProduct");

    const Feature& root = *RootObject(Open(rootPath));
    EXPECT_EQ(root.Alias(), "BracketAssembly");
    EXPECT_EQ(root.GetAs<std::string>("PartNumber"), "BracketAssembly");
    std::vector<std::string> uses;
    for (const Feature* const use : root.Children()) {
        const std::string& path = use->GetAs<DocumentLink>("Document").path;
        uses.push_back(use->GetAs<std::string>("PartNumber") + " " +
                       path.substr(folder.Path().size() + 1));
        EXPECT_EQ(use->GetAs<DoubleList>("Placement").size(), 12U);
        EXPECT_FALSE(use->Alias().empty());
    }
    EXPECT_THAT(uses, ElementsAre("Bracket Bracket.VEXPart", "Plate Plate.VEXPart",
                                  "Bolt Bolt.VEXPart", "Bolt Bolt.VEXPart"));
    const Feature* const third = *std::next(root.Children().begin(), 2);
    EXPECT_NE(third->GetAs<DoubleList>("Placement"),
              third->NextSibling()->GetAs<DoubleList>("Placement"));
}

TEST_F(StepImportTest, APartsShapeIsThereAfterReopening)
{
    ASSERT_TRUE(Import(assemblyFile, "demo")) << error;
    Document& bracket = Open(folder.File("Bracket.VEXPart"));
    EXPECT_EQ(RootObject(bracket)->Alias(), "Bracket");
    PartGeometry geometry(bracket);
    ShapeModel* const shape = geometry.Shape(error);
    ASSERT_NE(shape, nullptr) << error;
    EXPECT_EQ(shape->BodyCount(), 1U);
    EXPECT_GT(shape->CellCount(2), 10U);
    EXPECT_EQ(geometry.Shape(error), shape);
}

TEST_F(StepImportTest, APartAloneBecomesAPart)
{
    ASSERT_TRUE(Import(blockFile, "one")) << error;
    EXPECT_EQ(rootPath, folder.File("one.VEXPart"));
    EXPECT_THAT(folder.Names(), ElementsAre("one.VEXPart"));
    PartGeometry geometry(Open(rootPath));
    ShapeModel* const shape = geometry.Shape(error);
    ASSERT_NE(shape, nullptr) << error;
    EXPECT_EQ(shape->CellCount(2), 6U);
}

TEST_F(StepImportTest, ASubAssemblyBecomesAProductOfItsOwn)
{
    ASSERT_TRUE(Import(HLX_SOURCE_DIR "/tests/reference/topology/data/nested.step", "")) << error;
    Feature& root = *RootObject(Open(rootPath));
    std::vector<Feature*> below;
    ASSERT_TRUE(AllBelow(root, below, error)) << error;
    int parts = 0;
    int products = 0;
    for (const Document* const document : DocumentSession::Instance().Documents()) {
        parts += document->DocType() == DocumentType::Part ? 1 : 0;
        products += document->DocType() == DocumentType::Product ? 1 : 0;
    }
    EXPECT_EQ(static_cast<std::size_t>(parts + products), folder.Names().size());
    EXPECT_GE(products, 2);
    EXPECT_GE(parts, 1);
}

TEST_F(StepImportTest, WhatIsThereIsNotReplaced)
{
    hlxtest::WriteFile(folder.File("Plate.VEXPart"), "mine");
    EXPECT_FALSE(Import(assemblyFile, "demo"));
    EXPECT_THAT(error, HasSubstr("Plate.VEXPart': there is such a document already"));
    EXPECT_EQ(rootPath, "");
    EXPECT_THAT(folder.Names(), ElementsAre("Plate.VEXPart"));
    EXPECT_EQ(hlxtest::ReadFile(folder.File("Plate.VEXPart")), "mine");
}

TEST_F(StepImportTest, AFailureOnTheWayLeavesNoDocuments)
{
    // A folder that takes the root document's name while the parts are being stored.
    EXPECT_FALSE(ImportStep(assemblyFile, folder.Path(), "demo", rootPath, error,
                            [&](std::size_t done, std::size_t total, const std::string&) {
                                if (done + 1 == total) {
                                    std::filesystem::create_directory(
                                        folder.File("demo.VEXProduct"));
                                }
                            }));
    EXPECT_THAT(error, HasSubstr("demo.VEXProduct"));
    EXPECT_THAT(folder.Names(), ElementsAre("demo.VEXProduct"));
}

TEST_F(StepImportTest, ASaveThatFailsAtItsVeryEndLeavesNoDocumentEither)
{
    const system::FileOperations kept = system::CurrentFileOperations();
    system::CurrentFileOperations().synchronizeFolder = [](int) { return -EIO; };
    const bool imported = Import(assemblyFile, "demo");
    system::CurrentFileOperations() = kept;
    EXPECT_FALSE(imported);
    EXPECT_THAT(error, HasSubstr("putting its new name on the disk failed"));
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(StepImportTest, AFileThatTakesADocumentsNameOnTheWayIsNeitherReplacedNorRemoved)
{
    EXPECT_FALSE(ImportStep(assemblyFile, folder.Path(), "demo", rootPath, error,
                            [&](std::size_t done, std::size_t total, const std::string& name) {
                                if (done + 1 == total) {
                                    hlxtest::WriteFile(folder.File(name), "mine");
                                }
                            }));
    EXPECT_THAT(error, HasSubstr("demo.VEXProduct': there is such a document already"));
    EXPECT_THAT(folder.Names(), ElementsAre("demo.VEXProduct"));
    EXPECT_EQ(hlxtest::ReadFile(folder.File("demo.VEXProduct")), "mine");
}

TEST_F(StepImportTest, BadInputIsRefusedByName)
{
    EXPECT_FALSE(Import(folder.File("missing.step"), "demo"));
    EXPECT_THAT(error, HasSubstr("missing.step"));
    EXPECT_FALSE(ImportStep(assemblyFile, folder.File("nowhere"), "demo", rootPath, error));
    EXPECT_THAT(error, HasSubstr("nowhere': there is no such folder"));
    EXPECT_TRUE(folder.Names().empty());
}

TEST_F(StepImportTest, ADocumentWithoutAShapeSaysSo)
{
    Document* part = nullptr;
    ASSERT_EQ(DocumentSession::Instance().New("VEXPart", part, error), S_OK);
    EXPECT_EQ(PartGeometry(*part).Shape(error), nullptr);
    EXPECT_THAT(error, HasSubstr("the part has no geometry"));
    RootObject(*part)->Set("Geometry", std::int64_t{5});
    EXPECT_EQ(PartGeometry(*part).Shape(error), nullptr);
    EXPECT_THAT(error, HasSubstr("no geometry of number 5"));
    RootObject(*part)->Set("Geometry",
                           static_cast<std::int64_t>(part->AddGeometry({std::byte{1}})));
    EXPECT_EQ(PartGeometry(*part).Shape(error), nullptr);
    EXPECT_FALSE(error.empty());
    Document* product = nullptr;
    ASSERT_EQ(DocumentSession::Instance().New("VEXProduct", product, error), S_OK);
    EXPECT_EQ(PartGeometry(*product).Shape(error), nullptr);
    EXPECT_THAT(error, HasSubstr("it holds no part"));
    PartGeometry held(*part);
    ASSERT_EQ(DocumentSession::Instance().Remove(*part, true, error), S_OK);
    EXPECT_EQ(held.Shape(error), nullptr);
}

}  // namespace
