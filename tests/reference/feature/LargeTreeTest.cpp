// SPDX-License-Identifier: Apache-2.0
// Trees of many features: memory, and no recursion anywhere.
#include "TestDocument.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <vector>

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

TEST(LargeTree, AChainOf100000IsBuiltMovedAndDeleted)
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
    EXPECT_EQ(tree.Size(), length + 1);
    tree.Delete(*top);
    EXPECT_EQ(tree.Size(), 1U);
}

/// Builds a fan of 200,000 and removes all of it in the order that `order` gives its features.
void FanIsRemoved(const std::function<void(std::vector<Feature*>&)>& order)
{
    constexpr std::size_t width = 200'000;
    const DocumentHolder document = MakeDocument();
    FeatureTree& tree = document->Tree();
    Feature& hub = Add(*tree.Roots().front());
    std::vector<Feature*> features;
    for (std::size_t i = 0; i < width; ++i) {
        features.push_back(&tree.Create(Type("TestThing"), &hub));
    }
    ASSERT_TRUE(std::ranges::equal(hub.Children(), features));
    order(features);
    for (std::size_t i = 0; i < width; ++i) {
        tree.Delete(*features[i]);
        ASSERT_EQ(hub.Children().size(), width - i - 1);
    }
    EXPECT_TRUE(hub.Children().empty());
    EXPECT_EQ(tree.Size(), 2U);
}

// Each took minutes when a removal took time with the number of siblings.
TEST(LargeTree, AFanOf200000IsRemovedFromTheFront)
{
    FanIsRemoved([](std::vector<Feature*>&) {});
}

TEST(LargeTree, AFanOf200000IsRemovedFromTheBack)
{
    FanIsRemoved([](std::vector<Feature*>& features) { std::ranges::reverse(features); });
}

TEST(LargeTree, AFanOf200000IsRemovedInAnyOrder)
{
    FanIsRemoved([](std::vector<Feature*>& features) {
        std::shuffle(features.begin(), features.end(), std::mt19937(7));
    });
}

TEST(LargeTree, AFanOf200000IsBuiltFromItsEnd)
{
    const DocumentHolder document = MakeDocument();
    FeatureTree& tree = document->Tree();
    Feature& root = *tree.Roots().front();
    Feature* first = nullptr;
    std::vector<Feature*> features;
    for (int i = 0; i < 200'000; ++i) {
        first = &tree.Create(Type("TestThing"), &root, first);
        features.push_back(first);
    }
    std::ranges::reverse(features);
    EXPECT_TRUE(std::ranges::equal(root.Children(), features));
}

}  // namespace
