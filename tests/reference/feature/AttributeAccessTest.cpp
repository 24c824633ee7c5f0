// SPDX-License-Identifier: Apache-2.0
// Values of a feature's attributes by key: which keys there are, and which are refused.
#include "TestDocument.h"
#include "VEXOwnComponent.h"
#include "host/feature/FeatureAdapters.h"
#include "support/Outcome.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <limits>
#include <memory>

namespace {

using namespace vex;
using featuretest::Add;

/// A key that is not of the host's making, which says that it is of "Flag".
class OwnKey final : public VEXOwnComponent<OwnKey, VEXISpecAttrKey>
{
public:
    static constexpr const char* ComponentName = "TstOwnKey";
    static constexpr const char* LibraryName = "TstOwnKeys";
    VEXUnicodeString GetName() const override { return "Flag"; }
};

class AttributeAccess : public testing::Test
{
protected:
    static Document& NewDocument()
    {
        Document* made = nullptr;
        std::string error;
        EXPECT_EQ(DocumentSession::Instance().New("VEXPart", made, error), S_OK) << error;
        return *made;
    }

    static VEXISpecAttrAccess_var Of(const Feature& feature)
    {
        return FaceOf<VEXISpecAttrAccess>(&feature);
    }

    VEXISpecAttrKey_var Key(const char* name = "Flag") const { return access->GetAttrKey(name); }

    /// Neither sets nor gives; the attribute stays true.
    void ExpectRefused(const VEXISpecAttrKey_var& key, int context = 0)
    {
        unsigned char value = 7;
        EXPECT_EQ(access->SetBoolean(key, 0, context), E_INVALIDARG);
        EXPECT_EQ(access->GetBoolean(key, value, context), E_INVALIDARG);
        EXPECT_EQ(value, 0);
        EXPECT_TRUE(thing.GetAs<bool>("Flag"));
    }

    featuretest::ClosesAll closesAll;
    Document& document = NewDocument();
    Feature& container = *document.SpecContainer();
    Feature& thing = Add(container, "TestDerived", "thing");
    VEXISpecAttrAccess_var access = Of(thing);
};

TEST_F(AttributeAccess, HasAKeyForEachAttributeOfTheCatalogue)
{
    for (const char* const name :
         {"Flag", "Count", "Size", "Label", "Other", "File", "Samples", "Rows", "Extra"}) {
        const VEXISpecAttrKey_var key = Key(name);
        ASSERT_TRUE(key) << name;
        EXPECT_EQ(key->GetName(), name);
        EXPECT_EQ(hlxtest::References(*key.Get()), 1U);
        EXPECT_EQ(key->IsNull(), 0);
    }
}

TEST_F(AttributeAccess, HasNoKeyOfAnotherName)
{
    for (const char* const name : {"", "flag", "Flag ", " Flag", "Missing", "\xff", "Größe"}) {
        EXPECT_FALSE(Key(name)) << name;
    }
    EXPECT_FALSE(access->GetAttrKey(VEXUnicodeString(std::string("Flag\0", 5))));
    EXPECT_FALSE(Of(Add(container))->GetAttrKey("Extra")) << "of a type that extends its own";
    EXPECT_FALSE(Of(container)->GetAttrKey("Flag"));
}

TEST_F(AttributeAccess, SetsAndGivesABoolean)
{
    const VEXISpecAttrKey_var key = Key();
    unsigned char value = 7;
    EXPECT_EQ(access->GetBoolean(key, value, 0), S_OK);
    EXPECT_EQ(value, 1) << "the catalogue's default";
    for (const unsigned char given :
         std::initializer_list<unsigned char>{0, 1, 0, 2, 0, 255, 128}) {
        EXPECT_EQ(hlxtest::OutcomeOf([&] { return access->SetBoolean(key, given, 0); }),
                  (hlxtest::Outcome{S_OK, "", ""}));
        value = 7;
        EXPECT_EQ(access->GetBoolean(Key(), value, 0), S_OK);
        EXPECT_EQ(value, given == 0 ? 0 : 1);
        EXPECT_EQ(thing.GetAs<bool>("Flag"), given != 0);
    }
}

TEST_F(AttributeAccess, TakesAListedAttributeAsAKey)
{
    const auto listed = [](const Feature& feature) {
        const std::unique_ptr<VEXListPtrVEXISpecAttribute> list(
            FaceOf<VEXISpecObject>(&feature)->ListAttributes("boolean", "", ""));
        EXPECT_EQ(list->Size(), 1);
        const VEXISpecAttribute_var attribute = VEXAdopt((*list)[1]);
        return VEXISpecAttrKey_var(attribute);
    };
    const VEXISpecAttrKey_var key = listed(thing);
    ASSERT_TRUE(key);
    EXPECT_EQ(key->GetName(), "Flag");
    ExpectRefused(listed(Add(container, "TestDerived")));
    EXPECT_EQ(access->SetBoolean(key, 0, 0), S_OK);
    unsigned char value = 7;
    EXPECT_EQ(access->GetBoolean(key, value, 0), S_OK);
    EXPECT_EQ(value, 0);
    EXPECT_FALSE(thing.GetAs<bool>("Flag"));
    EXPECT_TRUE(VEXISpecAttribute_var(Key()));
}

TEST_F(AttributeAccess, LeavesOtherFeaturesAndAttributesAsTheyAre)
{
    const Feature& other = Add(container, "TestDerived");
    EXPECT_EQ(access->SetBoolean(Key(), 0, 0), S_OK);
    EXPECT_TRUE(other.GetAs<bool>("Flag"));
    int set = 0;
    thing.ForEachSet([&](int, const Value&) { ++set; });
    EXPECT_EQ(set, 1);
}

TEST_F(AttributeAccess, RefusesAnEmptyKeyAndKeysOfOtherKinds)
{
    ExpectRefused({});
    for (const char* const name :
         {"Count", "Size", "Label", "Other", "File", "Samples", "Rows", "Extra"}) {
        SCOPED_TRACE(name);
        ExpectRefused(Key(name));
    }
    EXPECT_EQ(thing.GetAs<std::int64_t>("Count"), 7);
}

TEST_F(AttributeAccess, RefusesKeysOfOtherFeatures)
{
    Feature& sameKind = Add(container, "TestDerived");
    ExpectRefused(Of(sameKind)->GetAttrKey("Flag"));
    ExpectRefused(Of(Add(container))->GetAttrKey("Flag"));
    ExpectRefused(Of(Add(thing, "TestDerived"))->GetAttrKey("Flag"));
    ExpectRefused(Of(Add(*NewDocument().SpecContainer(), "TestDerived"))->GetAttrKey("Flag"));
    const VEXISpecAttrKey_var gone = Of(sameKind)->GetAttrKey("Flag");
    sameKind.Tree()->Delete(sameKind);
    ExpectRefused(gone);
    ExpectRefused(VEXAdopt<VEXISpecAttrKey>(new OwnKey));
}

TEST_F(AttributeAccess, RefusesOtherContexts)
{
    for (const int context :
         {1, -1, 2, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        ExpectRefused(Key(), context);
    }
}

TEST_F(AttributeAccess, OfADeletedFeatureFails)
{
    const VEXISpecAttrKey_var key = Key();
    const VEXISpecAttrKey_var other = Of(Add(container))->GetAttrKey("Flag");
    thing.Tree()->Delete(thing);
    EXPECT_FALSE(Key());
    EXPECT_FALSE(Key("Missing"));
    for (const VEXISpecAttrKey_var& given : {key, other, VEXISpecAttrKey_var()}) {
        unsigned char value = 7;
        EXPECT_EQ(access->SetBoolean(given, 0, 0), E_FAIL);
        EXPECT_EQ(access->GetBoolean(given, value, 0), E_FAIL);
        EXPECT_EQ(value, 0);
        EXPECT_EQ(access->GetBoolean(given, value, 1), E_FAIL);
    }
    EXPECT_EQ(key->IsNull(), 1);
}

TEST_F(AttributeAccess, OfADocumentThatIsGoneFails)
{
    const VEXISpecAttrKey_var key = Key();
    EXPECT_EQ(access->SetBoolean(key, 1, 0), S_OK);
    std::string error;
    ASSERT_EQ(DocumentSession::Instance().Remove(document, true, error), S_OK) << error;
    EXPECT_FALSE(Key());
    unsigned char value = 7;
    EXPECT_EQ(access->SetBoolean(key, 0, 0), E_FAIL);
    EXPECT_EQ(access->GetBoolean(key, value, 0), E_FAIL);
    EXPECT_EQ(value, 0);
}

TEST_F(AttributeAccess, AKeyHoldsItsFeature)
{
    const unsigned long before = hlxtest::References(thing);
    VEXISpecAttrKey_var key = Key();
    EXPECT_EQ(hlxtest::References(thing), before + 1);
    thing.Tree()->Delete(thing);
    access.Reset();
    EXPECT_EQ(key->IsNull(), 1) << "it alone holds what was deleted";
    key.Reset();
}

TEST_F(AttributeAccess, WhatWasSetIsStored)
{
    const hlxtest::TemporaryFolder folder;
    const std::string path = folder.File("a.VEXPart");
    const FeatureId changed = thing.Id();
    const FeatureId left = Add(container, "TestDerived").Id();
    EXPECT_EQ(access->SetBoolean(Key(), 0, 0), S_OK);
    std::string error;
    DocumentSession& session = DocumentSession::Instance();
    ASSERT_EQ(session.SaveAs(document, path, "", true, error), S_OK) << error;
    access.Reset();
    ASSERT_EQ(session.Remove(document, true, error), S_OK) << error;
    const Document& opened = featuretest::Open(path);
    for (const FeatureId id : {changed, left}) {
        const Feature* const found = opened.Tree().Find(id);
        ASSERT_NE(found, nullptr);
        unsigned char value = 7;
        const VEXISpecAttrAccess_var stored = Of(*found);
        EXPECT_EQ(stored->GetBoolean(stored->GetAttrKey("Flag"), value, 0), S_OK);
        EXPECT_EQ(value, id == left ? 1 : 0);
    }
}

}  // namespace
