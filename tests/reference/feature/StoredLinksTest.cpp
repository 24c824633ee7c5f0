// SPDX-License-Identifier: Apache-2.0
// Links to other documents, stored and read back.
#include "StorageTest.h"

#include <filesystem>
#include <optional>
#include <set>

namespace {

using namespace vex;
using featuretest::Add;

class StoredLinks : public featuretest::StorageTest
{};

TEST_F(StoredLinks, MoveWithTheirDocuments)
{
    Feature& one = Add(root);
    one.Set("File", Boxed<DocumentLink>(DocumentLink{folder.File("parts/b.VEXPart")}));
    std::filesystem::create_directories(folder.File("first"));
    ASSERT_TRUE(SaveDocument(*document, folder.File("first/a.VEXPart"), error)) << error;
    EXPECT_EQ(one.GetAs<DocumentLink>("File").path, folder.File("parts/b.VEXPart"));
    std::filesystem::create_directories(folder.File("deep"));
    std::filesystem::rename(folder.File("first"), folder.File("deep/first"));
    const DocumentHolder read = Load(folder.File("deep/first/a.VEXPart"));
    EXPECT_EQ(read->Tree().Find(one.Id())->GetAs<DocumentLink>("File").path,
              folder.File("deep/parts/b.VEXPart"));
}

// A file may have any name: what kind of document it is stands in the link, also after a save while
// nobody knows.
TEST_F(StoredLinks, KeepTheKindOfTheirDocument)
{
    const std::string target = folder.File("parts/b.VEXPart");
    const auto linkTo = [&](std::optional<DocumentType> kind) -> Feature& {
        Feature& feature = Add(root);
        feature.Set("File", Boxed<DocumentLink>(DocumentLink{target, kind}));
        return feature;
    };
    const Feature& product = linkTo(DocumentType::Product);
    const Feature& analysis = linkTo(DocumentType::Analysis);
    const Feature& unsaid = linkTo({});
    const DocumentHolder* now = &document;
    DocumentHolder read;
    for (int time = 1; time <= 2; ++time) {
        ASSERT_TRUE(SaveDocument(**now, path, error)) << error;
        read = Load(path);
        now = &read;
        const auto link = [&](const Feature& feature) {
            return read->Tree().Find(feature.Id())->GetAs<DocumentLink>("File");
        };
        EXPECT_EQ(link(product), (DocumentLink{target, DocumentType::Product}));
        EXPECT_EQ(link(analysis), (DocumentLink{target, DocumentType::Analysis}));
        EXPECT_EQ(link(unsaid), (DocumentLink{target, DocumentType::Part})) << "as the file ends";
    }
}

// A long path that many features link to is in a small file once, and so in memory.
TEST_F(StoredLinks, ToOneDocumentShareItsPath)
{
    const DocumentLink link{folder.File(std::string(4000, 'd') + "/b.VEXPart")};
    for (int i = 0; i < 3; ++i) {
        Add(root).Set("File", Boxed<DocumentLink>(link));
    }
    ASSERT_TRUE(SaveDocument(*document, path, error)) << error;
    const DocumentHolder read = Load(path);
    std::set<const std::string*> paths;
    for (const Feature* const feature : read->Tree().Roots().front()->Children()) {
        const std::string& linked = feature->GetAs<DocumentLink>("File").path;
        EXPECT_EQ(linked, link.path);
        paths.insert(&linked);
    }
    EXPECT_EQ(paths.size(), 1U);
}

}  // namespace
