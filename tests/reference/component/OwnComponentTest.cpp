// SPDX-License-Identifier: Apache-2.0
// Components written with the SDK alone: what they answer, and how the host finds them.
#include "VEXComponents.h"
#include "VEXFeatures.h"
#include "VEXOwnComponent.h"
#include "host/component/ComponentTypes.h"

#include <gmock/gmock.h>

namespace {

class OwnAlias : public VEXOwnComponent<OwnAlias, VEXIAlias>
{
public:
    static constexpr const char* ComponentName = "OwnComponentTestAlias";
    static constexpr const char* LibraryName = "OwnComponentTestLibrary";

    HRESULT SetAlias(const VEXUnicodeString& name) override
    {
        _alias = name;
        return S_OK;
    }
    VEXUnicodeString GetAlias() const override { return _alias; }

private:
    VEXUnicodeString _alias = "own";
};

class OwnDescendants final : public VEXOwnComponent<OwnDescendants, VEXIDescendants>
{
public:
    static constexpr const char* ComponentName = "OwnComponentTestDescendants";
    static constexpr const char* LibraryName = OwnAlias::LibraryName;

    HRESULT GetAllChildren(const char*, VEXListValVEXISpecObject_var&) const override
    {
        return S_FALSE;
    }
};

/// Tells that it dies.
class MortalAlias final : public OwnAlias
{
public:
    explicit MortalAlias(bool& isDead) : _isDead(isDead) {}
    ~MortalAlias() override { _isDead = true; }

private:
    bool& _isDead;
};

TEST(OwnComponentTest, AnswersItsInterfaceAndTheBaseByIdentifierAndByName)
{
    const auto alias = VEXAdopt<VEXIAlias>(new OwnAlias);
    const VEXBaseUnknown_var base = alias;
    const VEXIAlias_var again = base;
    ASSERT_TRUE(again);
    EXPECT_TRUE(again == alias);
    EXPECT_EQ("own", again->GetAlias());

    void* object = nullptr;
    ASSERT_EQ(S_OK, alias->QueryInterface("VEXIAlias", &object));
    EXPECT_EQ("own", VEXAdopt(static_cast<VEXIAlias*>(object))->GetAlias());
    ASSERT_EQ(S_OK, alias->QueryInterface("VEXBaseUnknown", &object));
    EXPECT_EQ(1, VEXAdopt(static_cast<VEXBaseUnknown*>(object))->IsEqual(alias.Get()));
}

TEST(OwnComponentTest, RefusesOtherInterfacesAndWhatIsNull)
{
    const auto alias = VEXAdopt<VEXIAlias>(new OwnAlias);
    EXPECT_FALSE(VEXISpecObject_var(alias));
    void* object = &object;
    EXPECT_EQ(E_NOINTERFACE, alias->QueryInterface(IID_VEXISpecObject, &object));
    EXPECT_EQ(nullptr, object);
    object = &object;
    EXPECT_EQ(E_NOINTERFACE, alias->QueryInterface(static_cast<const char*>(nullptr), &object));
    EXPECT_EQ(nullptr, object);
    EXPECT_EQ(E_POINTER, alias->QueryInterface(IID_VEXIAlias, nullptr));
    EXPECT_EQ(E_POINTER, alias->QueryInterface("VEXIAlias", nullptr));
}

TEST(OwnComponentTest, DiesWithItsLastReference)
{
    bool isDead = false;
    auto alias = VEXAdopt<VEXIAlias>(new MortalAlias(isDead));
    VEXBaseUnknown_var base = alias;
    alias.Reset();
    EXPECT_FALSE(isDead);
    base.Reset();
    EXPECT_TRUE(isDead);
}

TEST(OwnComponentTest, IsOfTheClassAndLibraryThatItNames)
{
    const auto alias = VEXAdopt<VEXIAlias>(new OwnAlias);
    EXPECT_STREQ("OwnComponentTestAlias", alias->IsA());
    EXPECT_EQ(1, alias->IsAKindOf("OwnComponentTestAlias"));
    EXPECT_EQ(1, alias->IsAKindOf("VEXBaseUnknown"));
    EXPECT_EQ(0, alias->IsAKindOf("OwnComponentTestDescendants"));
    EXPECT_STREQ("OwnComponentTestLibrary", alias->GetMetaObject()->GetFramework());
}

TEST(OwnComponentTest, LibraryIsMergedAndItsComponentsAreMadeByName)
{
    const VEXComponentLibrary* const library = VEXOwnComponentLibrary<OwnAlias, OwnDescendants>();
    EXPECT_EQ(VEXComponentLibraryVersion, library->Version);
    EXPECT_STREQ("OwnComponentTestLibrary", library->Name);
    std::string error;
    ASSERT_TRUE(vex::ComponentTypes::Instance().Merge(*library, error)) << error;

    void* object = nullptr;
    ASSERT_EQ(S_OK, VEXInstantiateComponent("OwnComponentTestAlias", IID_VEXIAlias, &object));
    const auto alias = VEXAdopt(static_cast<VEXIAlias*>(object));
    EXPECT_EQ(S_OK, alias->SetAlias("changed"));

    // The host keeps the one object that it made.
    ASSERT_EQ(S_OK, VEXInstantiateComponent("OwnComponentTestAlias", IID_VEXIAlias, &object));
    EXPECT_EQ("changed", VEXAdopt(static_cast<VEXIAlias*>(object))->GetAlias());

    ASSERT_EQ(S_OK,
              VEXInstantiateComponent("OwnComponentTestDescendants", IID_VEXIDescendants, &object));
    VEXListValVEXISpecObject_var none;
    EXPECT_EQ(S_FALSE,
              VEXAdopt(static_cast<VEXIDescendants*>(object))->GetAllChildren(nullptr, none));
    EXPECT_EQ(E_NOINTERFACE,
              VEXInstantiateComponent("OwnComponentTestAlias", IID_VEXIDescendants, &object));
}

}  // namespace
