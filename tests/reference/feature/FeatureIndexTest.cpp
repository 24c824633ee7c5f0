// SPDX-License-Identifier: Apache-2.0
// Features are found by id, whatever ids there are and in whatever order they come and go.
#include "TestDocument.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace {

using namespace featuretest;
using vex::Feature;
using vex::FeatureId;
using vex::FeatureTree;

TEST(FeatureIndexTest, FindsDenseAndDistantIdsThatComeAndGo)
{
    const vex::DocumentHolder document = MakeDocument();
    FeatureTree& tree = document->Tree();
    Feature& root = *tree.Roots().front();
    std::map<FeatureId, Feature*> expected = {{root.Id(), &root}};
    std::mt19937_64 random(7);  // NOLINT: the same ids in each run
    for (int i = 0; i < 20'000; ++i) {
        const FeatureId dense = 1 + random() % 4'000;
        const FeatureId distant = 1 + random() % vex::maximumStoredId;
        const FeatureId id = i % 3 == 0 ? distant : dense;
        const auto known = expected.find(id);
        ASSERT_EQ(tree.Find(id), known == expected.end() ? nullptr : known->second) << id;
        Feature* const made = tree.Restore(Type("TestThing"), &root, id);
        ASSERT_EQ(made == nullptr, known != expected.end()) << id;
        if (made != nullptr) {
            expected.emplace(id, made);
        } else if (id != root.Id()) {
            tree.Delete(*known->second);
            expected.erase(known);
        }
        ASSERT_EQ(tree.Size(), expected.size());
    }
    for (const auto& [id, feature] : expected) {
        ASSERT_EQ(tree.Find(id), feature) << id;
    }
}

TEST(FeatureIndexTest, FindsNothingUnderIdsThatNoFeatureHas)
{
    const vex::DocumentHolder document = MakeDocument();
    for (const FeatureId id : {FeatureId{0}, FeatureId{2}, vex::maximumStoredId, ~FeatureId{0}}) {
        EXPECT_EQ(document->Tree().Find(id), nullptr) << id;
    }
    document->Tree().Clear();
    EXPECT_EQ(document->Tree().Find(1), nullptr);
}

TEST(FeatureIndexTest, AnAliasMayBeGivenFromItself)
{
    const vex::DocumentHolder document = MakeDocument();
    Feature& thing = Add(*document->Tree().Roots().front(), "TestThing", "A long name of a thing");
    EXPECT_EQ(thing.SetAlias(thing.Alias().substr(2)), S_OK);
    EXPECT_EQ(thing.Alias(), "long name of a thing");
}

}  // namespace
