// SPDX-License-Identifier: Apache-2.0
// A feature's name and attributes.
#include "TestDocument.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace vex;
using featuretest::Add;
using featuretest::MakeDocument;

class FeatureTest : public testing::Test
{
protected:
    DocumentHolder document = MakeDocument();
    Feature& root = *document->Tree().Roots().front();
    Feature& thing = Add(root);
};

TEST_F(FeatureTest, UnsetAttributesHaveTheCataloguesDefaults)
{
    EXPECT_TRUE(thing.GetAs<bool>("Flag"));
    EXPECT_EQ(thing.GetAs<std::int64_t>("Count"), 7);
    EXPECT_EQ(thing.GetAs<double>("Size"), 0.5);
    EXPECT_EQ(thing.GetAs<std::string>("Label"), "none");
    EXPECT_EQ(thing.GetAs<Reference>("Other"), Reference{});
    EXPECT_EQ(thing.GetAs<DocumentLink>("File"), DocumentLink{});
    EXPECT_EQ(thing.GetAs<DoubleList>("Samples"), (DoubleList{1, 2}));
    EXPECT_EQ(thing.GetAs<DoubleTable>("Rows"), DoubleTable{});
    for (int index = 0; index < 8; ++index) {
        EXPECT_FALSE(thing.IsSet(index));
    }
}

TEST_F(FeatureTest, EachKindCanBeSetChangedAndUnset)
{
    const std::pair<const char*, Value> values[] = {
        {"Rows", Boxed<DoubleTable>(DoubleTable{2, {1, 2, 3, 4}})},
        {"Flag", false},
        {"Samples",
         Boxed<DoubleList>(DoubleList{-0.0, 1e300, std::numeric_limits<double>::infinity()})},
        {"Count", std::numeric_limits<std::int64_t>::min()},
        {"Other", Reference{root.Id()}},
        {"File", Boxed<DocumentLink>(DocumentLink{"/a/b.VEXPart"})},
        {"Label", Boxed<std::string>("")},
        {"Size", 1e-300},
    };
    for (const auto& [name, value] : values) {
        EXPECT_EQ(thing.Set(name, value), S_OK) << name;
        EXPECT_EQ(thing.Get(name), value) << name;
    }
    for (const auto& [name, value] : values) {
        EXPECT_EQ(thing.Get(name), value) << name;
        EXPECT_TRUE(thing.IsSet(thing.Kind().IndexOf(name)));
    }
    EXPECT_EQ(thing.Set("Size", 2.0), S_OK);
    EXPECT_EQ(thing.GetAs<double>("Size"), 2.0);
    thing.Unset(thing.Kind().IndexOf("Size"));
    EXPECT_EQ(thing.GetAs<double>("Size"), 0.5);
    thing.Unset(thing.Kind().IndexOf("Size"));
    thing.Unset(-1);
    EXPECT_EQ(thing.Target("Other"), &root);
}

TEST_F(FeatureTest, SetAttributesAreVisitedInCatalogueOrder)
{
    thing.Set("Size", 1.0);
    thing.Set("Flag", false);
    thing.Set("Samples", Boxed<DoubleList>());
    thing.Set("Count", std::int64_t{1});
    std::string order;
    thing.ForEachSet([&](int index, const Value&) { order += std::to_string(index); });
    EXPECT_EQ(order, "0126");
}

TEST_F(FeatureTest, WhatDoesNotFitIsRefusedAndChangesNothing)
{
    EXPECT_EQ(thing.Set(0, Value(1.0)), E_INVALIDARG);
    EXPECT_EQ(thing.Set(-1, Value(true)), E_INVALIDARG);
    EXPECT_EQ(thing.Set(8, Value(true)), E_INVALIDARG);
    EXPECT_EQ(thing.Set("Label", Boxed<std::string>("\xC0\x80")), E_INVALIDARG);
    EXPECT_EQ(thing.Set("Label", Boxed<std::string>(std::string("a\0b", 3))), E_INVALIDARG);
    EXPECT_EQ(thing.Set("File", Boxed<DocumentLink>(DocumentLink{"relative.VEXPart"})),
              E_INVALIDARG);
    EXPECT_EQ(thing.Set("Rows", Boxed<DoubleTable>(DoubleTable{2, {1, 2, 3}})), E_INVALIDARG);
    EXPECT_EQ(thing.Set("Rows", Boxed<DoubleTable>(DoubleTable{0, {1}})), E_INVALIDARG);
    EXPECT_EQ(thing.Set("Other", Reference{999}), E_INVALIDARG);
    for (int index = 0; index < 8; ++index) {
        EXPECT_FALSE(thing.IsSet(index));
    }
}

TEST_F(FeatureTest, AliasesMayBeEmptyOrRepeatAndHoldAnythingButZero)
{
    EXPECT_FALSE(thing.HasAlias());
    EXPECT_EQ(thing.Alias(), "");
    for (const char* const alias :
         {"", "Load \"1\"\n\t\\", "Größe-Ω-𝄞", "a/../b", "=,()", "\x01"}) {
        EXPECT_EQ(thing.SetAlias(alias), S_OK);
        EXPECT_EQ(thing.Alias(), alias);
        EXPECT_EQ(root.SetAlias(alias), S_OK);
    }
    EXPECT_TRUE(thing.HasAlias());
    for (const std::string& bad : {std::string("\xFF"), std::string("\xED\xA0\x80"),
                                   std::string("\xC3"), std::string("a\0b", 3)}) {
        EXPECT_EQ(thing.SetAlias(bad), E_INVALIDARG);
        EXPECT_EQ(thing.Alias(), "\x01");
    }
    EXPECT_EQ(thing.SetAlias(std::string(1 << 20, 'x')), S_OK);
}

TEST_F(FeatureTest, AReferenceIsEmptyOnceItsTargetIsDeleted)
{
    Feature& target = Add(root);
    EXPECT_EQ(thing.Set("Other", Reference{target.Id()}), S_OK);
    EXPECT_EQ(thing.Target("Other"), &target);
    document->Tree().Delete(target);
    EXPECT_EQ(thing.Target("Other"), nullptr);
    EXPECT_EQ(thing.GetAs<Reference>("Other"), Reference{});
    EXPECT_FALSE(thing.IsSet(thing.Kind().IndexOf("Other")));
    // A feature made later does not inherit the reference.
    Add(root);
    EXPECT_EQ(thing.Target("Other"), nullptr);
}

TEST_F(FeatureTest, KnowsItsLateTypeAndItsBases)
{
    const Feature& derived = Add(root, "TestDerived");
    EXPECT_STREQ(derived.IsA(), "TestDerived");
    EXPECT_EQ(derived.IsAKindOf("TestThing"), 1);
    EXPECT_EQ(derived.IsAKindOf("VEXFeature"), 1);
    EXPECT_EQ(derived.IsAKindOf("TestContainer"), 0);
    EXPECT_EQ(derived.IsAKindOf(nullptr), 0);
}

using FeatureDeathTest = FeatureTest;

TEST_F(FeatureDeathTest, AnAttributeThatTheProgramNamesWronglyEndsIt)
{
    EXPECT_DEATH(thing.Get("Missing"),
                 "attribute 'Missing' of late type 'TestThing' does not exist");
    EXPECT_DEATH(thing.GetAs<double>("Flag"),
                 "attribute 'Flag' of late type 'TestThing' is of another kind");
    EXPECT_DEATH(thing.Set("Flag", 1.0),
                 "attribute 'Flag' of late type 'TestThing' is of another kind");
    EXPECT_DEATH(thing.Target("Flag"), "is of another kind");
    EXPECT_DEATH(thing.Get(8), "attribute '8'");
}

}  // namespace
