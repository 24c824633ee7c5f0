// SPDX-License-Identifier: Apache-2.0
// Building, rearranging and taking down trees; who lives how long.
#include "TestDocument.h"
#include "VEXFeatures.h"

#include <gmock/gmock.h>

#include <random>
#include <set>

namespace {

using namespace vex;
using featuretest::Add;
using featuretest::MakeDocument;
using featuretest::Outline;
using featuretest::Type;
using testing::ElementsAre;

class FeatureTreeTest : public testing::Test
{
protected:
    DocumentHolder document = MakeDocument();
    FeatureTree& tree = document->Tree();
    Feature& root = *tree.Roots().front();
    Feature& a = Add(root, "TestThing", "a");
    Feature& b = Add(root, "TestThing", "b");
};

TEST_F(FeatureTreeTest, CreatesAtTheEndOrInFrontOfASibling)
{
    Feature& first = tree.Create(Type("TestThing"), &root, &a);
    Feature& middle = tree.Create(Type("TestThing"), &root, &b);
    Feature& last = tree.Create(Type("TestThing"), &root);
    EXPECT_THAT(root.Children(), ElementsAre(&first, &a, &middle, &b, &last));
    EXPECT_EQ(first.Parent(), &root);
    EXPECT_EQ(tree.Size(), 6U);
    // A feature that is no sibling stands for the end.
    Feature& end = tree.Create(Type("TestThing"), &root, &root);
    EXPECT_EQ(root.Children().back(), &end);
}

TEST_F(FeatureTreeTest, FindsByIdUntilDeleted)
{
    const FeatureId id = a.Id();
    EXPECT_EQ(tree.Find(id), &a);
    EXPECT_EQ(tree.Find(0), nullptr);
    EXPECT_EQ(tree.Find(12345), nullptr);
    tree.Delete(a);
    EXPECT_EQ(tree.Find(id), nullptr);
    EXPECT_EQ(Outline(root), "TestContainer(TestThing 'b')");
}

TEST_F(FeatureTreeTest, RestoresUnderTheStoredIdAndGivesLaterOnesHigherIds)
{
    Feature* const restored = tree.Restore(Type("TestThing"), &root, 500);
    ASSERT_NE(restored, nullptr);
    EXPECT_EQ(restored->Id(), 500U);
    EXPECT_EQ(tree.Restore(Type("TestThing"), &root, 500), nullptr);
    EXPECT_EQ(tree.Restore(Type("TestThing"), &root, 0), nullptr);
    EXPECT_EQ(tree.Restore(Type("TestThing"), &root, maximumStoredId + 1), nullptr);
    EXPECT_NE(tree.Restore(Type("TestThing"), &root, maximumStoredId), nullptr);
    EXPECT_GT(tree.Create(Type("TestThing"), &root).Id(), maximumStoredId);
}

TEST_F(FeatureTreeTest, MovesWithWhatIsBelowButNotIntoItself)
{
    Feature& leaf = Add(a, "TestThing", "leaf");
    EXPECT_FALSE(tree.Move(a, &leaf, nullptr));
    EXPECT_FALSE(tree.Move(a, &a, nullptr));
    EXPECT_TRUE(tree.Move(a, &b, nullptr));
    EXPECT_EQ(Outline(root), "TestContainer(TestThing 'b'(TestThing 'a'(TestThing 'leaf')))");
    EXPECT_TRUE(tree.Move(leaf, &b, &a));
    EXPECT_EQ(Outline(root), "TestContainer(TestThing 'b'(TestThing 'leaf', TestThing 'a'))");
    EXPECT_TRUE(tree.Move(a, &b, &a));
    EXPECT_EQ(Outline(root), "TestContainer(TestThing 'b'(TestThing 'leaf', TestThing 'a'))");
    EXPECT_TRUE(tree.Move(a, &b, &leaf));
    EXPECT_EQ(Outline(root), "TestContainer(TestThing 'b'(TestThing 'a', TestThing 'leaf'))");
    EXPECT_TRUE(tree.Move(b, nullptr, &root));
    EXPECT_THAT(tree.Roots(), ElementsAre(&b, &root));
    EXPECT_EQ(b.Parent(), nullptr);
}

TEST_F(FeatureTreeTest, DeletesWhateverStandsAnywhereAmongManySiblings)
{
    std::vector<Feature*> expected{&a, &b};
    for (int i = 0; i < 9; ++i) {
        expected.push_back(&Add(root));
    }
    for (const std::size_t index : {0U, 9U, 4U, 1U, 3U, 0U}) {
        tree.Delete(*expected[index]);
        expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(index));
        EXPECT_THAT(root.Children(), testing::ElementsAreArray(expected));
    }
}

TEST_F(FeatureTreeTest, WalksEachBeforeItsChildren)
{
    Add(a, "TestThing", "a1");
    Add(Add(a, "TestThing", "a2"), "TestThing", "deep");
    std::string walk;
    FeatureTree::Walk(root, [&](const Feature& feature, int depth) {
        walk += std::to_string(depth) + std::string(feature.Alias()) + ' ';
    });
    EXPECT_EQ(walk, "0 1a 2a1 2a2 3deep 1b ");
}

TEST_F(FeatureTreeTest, IdsStayFindableThroughManyInsertionsAndRemovals)
{
    std::mt19937 random(1);
    std::set<FeatureId> present;
    for (int i = 0; i < 20000; ++i) {
        const FeatureId id = 100 + random() % 3000 * 1024;
        if (Feature* const feature = tree.Find(id)) {
            tree.Delete(*feature);
            present.erase(id);
        } else {
            ASSERT_NE(tree.Restore(Type("TestThing"), i % 2 == 0 ? &a : &b, id), nullptr);
            present.insert(id);
        }
    }
    ASSERT_EQ(tree.Size(), present.size() + 3);
    for (const FeatureId id : present) {
        ASSERT_NE(tree.Find(id), nullptr);
        ASSERT_EQ(tree.Find(id)->Id(), id);
    }
}

TEST_F(FeatureTreeTest, AHeldFeatureOutlivesItsDeletionDetached)
{
    Add(a, "TestThing", "below");
    a.Set("Size", 2.0);
    const VEXISpecObject_var held = VEXShare(a.Face<VEXISpecObject>());
    const VEXIAlias_var alias = held;
    tree.Delete(a);
    EXPECT_EQ(held->IsNull(), 1);
    EXPECT_TRUE(held->GetType().IsEmpty());
    EXPECT_FALSE(held->GetFather());
    EXPECT_EQ(held->ListAttributes("", "", ""), nullptr);
    EXPECT_TRUE(alias->GetAlias().IsEmpty());
    EXPECT_EQ(alias->SetAlias("again"), E_FAIL);
    EXPECT_EQ(a.Set("Size", 3.0), E_FAIL);
    EXPECT_EQ(a.GetAs<double>("Size"), 0.5);
    EXPECT_TRUE(a.Children().empty());
    EXPECT_EQ(a.Tree(), nullptr);
}

TEST_F(FeatureTreeTest, AHeldFeatureOutlivesItsDocument)
{
    const VEXIAlias_var held = VEXShare(a.Face<VEXIAlias>());
    document.reset();
    EXPECT_EQ(held->IsNull(), 1);
    EXPECT_EQ(held->SetAlias("x"), E_FAIL);
    const VEXISpecObject_var spec = held;
    EXPECT_TRUE(spec);
}

TEST_F(FeatureTreeTest, AFeatureWithoutHoldersStaysInTheTree)
{
    VEXIAlias_var held = VEXShare(a.Face<VEXIAlias>());
    held.Reset();
    EXPECT_EQ(tree.Find(a.Id()), &a);
    EXPECT_EQ(a.Alias(), "a");
    held = VEXShare(a.Face<VEXIAlias>());
    EXPECT_EQ(held->GetAlias(), "a");
}

}  // namespace
