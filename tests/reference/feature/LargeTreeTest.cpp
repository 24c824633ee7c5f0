// SPDX-License-Identifier: Apache-2.0
// Trees of many features: memory, and no recursion anywhere.
#include "TestDocument.h"
#include "host/feature/DocumentStorage.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <malloc.h>

namespace {

using namespace vex;
using featuretest::Add;
using featuretest::MakeDocument;
using featuretest::Type;

std::size_t AllocatedBytes()
{
    const struct mallinfo2 information = mallinfo2();
    return information.uordblks + information.hblkhd;
}

TEST(LargeTree, AFeatureWithThreeAttributesTakesAtMost300Bytes)
{
    if (AllocatedBytes() == 0) {
        GTEST_SKIP() << "this allocator (a sanitizer's) does not tell what is allocated";
    }
    constexpr std::size_t count = 100'000;
    const DocumentHolder document = MakeDocument();
    Feature& root = *document->Tree().Roots().front();
    const std::size_t before = AllocatedBytes();
    for (std::size_t i = 0; i < count; ++i) {
        Feature& feature = Add(root);
        feature.Set(0, Value(false));
        feature.Set(1, Value(std::int64_t{1}));
        feature.Set(2, Value(1.0));
    }
    const std::size_t bytes = (AllocatedBytes() - before) / count;
    RecordProperty("bytes_per_feature", static_cast<int>(bytes));
    EXPECT_LE(bytes, 300U);
}

/// Stores and reads the document again; answers how many features came back.
std::size_t SizeAfterRoundTrip(Document& document)
{
    const hlxtest::TemporaryFolder folder;
    const std::string path = folder.File("large.VEXPart");
    std::string error;
    EXPECT_TRUE(SaveDocument(document, path, error)) << error;
    const DocumentHolder read = LoadDocument(path, error);
    EXPECT_NE(read, nullptr) << error;
    return read == nullptr ? 0 : read->Tree().Size();
}

TEST(LargeTree, AChainOf100000IsBuiltMovedStoredAndDeleted)
{
    constexpr std::size_t length = 100'000;
    const DocumentHolder document = MakeDocument();
    FeatureTree& tree = document->Tree();
    Feature& root = *tree.Roots().front();
    Feature* top = nullptr;
    Feature* bottom = &root;
    for (std::size_t i = 0; i < length; ++i) {
        bottom = &Add(*bottom);
        top = top == nullptr ? bottom : top;
    }
    int deepest = 0;
    FeatureTree::Walk(root, [&](const Feature&, int depth) { deepest = depth; });
    EXPECT_EQ(deepest, static_cast<int>(length));
    EXPECT_FALSE(tree.Move(*top, bottom, nullptr));
    EXPECT_EQ(SizeAfterRoundTrip(*document), length + 1);
    tree.Delete(*top);
    EXPECT_EQ(tree.Size(), 1U);
}

void FanIsBuiltStoredAndDeleted(std::size_t width)
{
    const DocumentHolder document = MakeDocument();
    FeatureTree& tree = document->Tree();
    Feature& hub = Add(*tree.Roots().front());
    for (std::size_t i = 0; i < width; ++i) {
        tree.Create(Type("TestThing"), &hub);
    }
    EXPECT_EQ(SizeAfterRoundTrip(*document), width + 2);
    while (hub.Children().size() > width / 2) {
        tree.Delete(*hub.Children().back());
    }
    tree.Delete(hub);
    EXPECT_EQ(tree.Size(), 1U);
}

TEST(LargeTree, AFanOf100000IsBuiltStoredAndDeleted)
{
    FanIsBuiltStoredAndDeleted(100'000);
}

TEST(LargeTree, AFanOfAMillionIsBuiltStoredAndDeleted)
{
    FanIsBuiltStoredAndDeleted(1'000'000);
}

}  // namespace
