// SPDX-License-Identifier: Apache-2.0
// Components and their adapters: queries, identity, counting in every order.
#include "VEXFeatures.h"
#include "VEXMetaClass.h"
#include "host/component/Adapter.h"
#include "host/system/Probes.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

int liveAdapters = 0;
int liveComponents = 0;

class Named : public vex::Component
{
public:
    explicit Named(const vex::ComponentType& type, std::uint32_t initialCount = 1)
        : Component(type, initialCount)
    {
        ++liveComponents;
    }
    ~Named() override { --liveComponents; }
    VEXUnicodeString name = "name";
};

class NamedAlias final : public vex::Adapter<VEXIAlias, Named>
{
public:
    explicit NamedAlias(VEXBaseUnknown& component) : Adapter(component) { ++liveAdapters; }
    ~NamedAlias() override { --liveAdapters; }
    HRESULT SetAlias(const VEXUnicodeString& name) override
    {
        Self().name = name;
        return S_OK;
    }
    VEXUnicodeString GetAlias() const override { return Self().name; }
};

class NamedDescendants final : public vex::Adapter<VEXIDescendants, Named>
{
public:
    explicit NamedDescendants(VEXBaseUnknown& component) : Adapter(component) { ++liveAdapters; }
    ~NamedDescendants() override { --liveAdapters; }
    HRESULT GetAllChildren(const char*, VEXListValVEXISpecObject_var&) const override
    {
        return S_OK;
    }
};

class OwnedByTree final : public Named
{
public:
    explicit OwnedByTree(const vex::ComponentType& type) : Named(type, 0) {}
    mutable int unreferenced = 0;

private:
    void OnUnreferenced() const override { ++unreferenced; }
};

class ComponentTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        static constexpr VEXInterfaceRow base[] = {vex::InterfaceRow<NamedAlias>()};
        static constexpr VEXInterfaceRow own[] = {vex::InterfaceRow<NamedDescendants>()};
        static const VEXComponentRow rows[] = {
            {"ComponentTestBase", nullptr, base, nullptr},
            {"ComponentTestNamed", "ComponentTestBase", own, nullptr},
        };
        static const VEXComponentLibrary library = {VEXComponentLibraryVersion, "ComponentTest",
                                                    rows, nullptr};
        if (types.Find("ComponentTestNamed") == nullptr) {
            std::string error;
            ASSERT_TRUE(types.Merge(library, error)) << error;
        }
    }

    ~ComponentTest() override
    {
        EXPECT_EQ(0, liveComponents);
        EXPECT_EQ(0, liveAdapters);
        vex::probe::ClearFaults();
        vex::probe::StopRecording();
    }

    static const vex::ComponentType& Type() { return types.Require("ComponentTestNamed"); }
    inline static vex::ComponentTypes& types = vex::ComponentTypes::Instance();
};

TEST_F(ComponentTest, EveryInterfaceReachesEveryOther)
{
    const VEXBaseUnknown_var base = VEXAdopt<VEXBaseUnknown>(new Named(Type()));
    const VEXIAlias_var alias = base;
    ASSERT_TRUE(alias);
    const VEXIDescendants_var descendants = alias;
    ASSERT_TRUE(descendants);
    EXPECT_EQ(alias.Get(), VEXIAlias_var(descendants).Get()) << "one adapter an interface";
    EXPECT_FALSE(VEXIContainer_var(descendants));
    EXPECT_TRUE(alias == descendants);
    EXPECT_EQ(base.Get(), descendants->GetImpl());
    EXPECT_STREQ("ComponentTestNamed", alias->IsA());
    EXPECT_EQ(1, alias->IsAKindOf("ComponentTestBase"));
    EXPECT_EQ(1, alias->IsAKindOf("VEXBaseUnknown"));
    EXPECT_EQ(0, alias->IsAKindOf("VEXIAlias"));
    EXPECT_EQ(0, alias->IsAKindOf(nullptr));
    EXPECT_STREQ("ComponentTestNamed", alias->GetMetaObject()->GetName());
    EXPECT_EQ(1, alias->GetMetaObject()->IsAKindOf("ComponentTestBase"));
    VEXIAlias_var(descendants)->SetAlias("changed");
    EXPECT_TRUE(alias->GetAlias() == "changed");
}

TEST_F(ComponentTest, QueriesByNameAndTheirErrors)
{
    const VEXBaseUnknown_var base = VEXAdopt<VEXBaseUnknown>(new Named(Type()));
    void* object = nullptr;
    EXPECT_EQ(S_OK, base->QueryInterface("VEXIAlias", &object));
    const VEXIAlias_var alias = VEXAdopt(static_cast<VEXIAlias*>(object));
    EXPECT_EQ(S_OK, alias->QueryInterface("VEXBaseUnknown", &object));
    EXPECT_EQ(base.Get(), object);
    base->Release();
    EXPECT_EQ(E_NOINTERFACE, alias->QueryInterface("VEXIContainer", &object));
    EXPECT_EQ(nullptr, object);
    const char* const noName = nullptr;
    EXPECT_EQ(E_NOINTERFACE, alias->QueryInterface(noName, &object));
    EXPECT_EQ(E_POINTER, alias->QueryInterface(IID_VEXIAlias, nullptr));
}

TEST_F(ComponentTest, DiesWithItsLastReferenceInWhateverOrderTheyGo)
{
    std::array<std::size_t, 4> order = {0, 1, 2, 3};
    do {
        std::array<VEXBaseUnknown*, 4> references{};
        references[0] = new Named(Type());
        VEXIAlias_var alias = VEXShare(references[0]);
        VEXIDescendants_var descendants = alias;
        VEXIAlias_var again = descendants;
        references[1] = alias.Detach();
        references[2] = descendants.Detach();
        references[3] = again.Detach();
        for (std::size_t i = 0; i < order.size(); ++i) {
            EXPECT_EQ(1, liveComponents);
            EXPECT_EQ(2, liveAdapters);
            EXPECT_EQ(order.size() - 1 - i, references[order[i]]->Release());
        }
        EXPECT_EQ(0, liveComponents);
        EXPECT_EQ(0, liveAdapters);
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST_F(ComponentTest, OfATreeItOutlivesItsHoldersWithoutAdapters)
{
    OwnedByTree owned(Type());
    {
        const VEXIAlias_var alias = VEXShare<VEXBaseUnknown>(&owned);
        EXPECT_EQ(1, liveAdapters);
    }
    EXPECT_EQ(0, liveAdapters);
    EXPECT_EQ(1, owned.unreferenced);
    EXPECT_TRUE(VEXIDescendants_var(VEXShare<VEXBaseUnknown>(&owned)));
    EXPECT_EQ(2, owned.unreferenced);
    EXPECT_NE(nullptr, owned.Face<VEXIAlias>()) << "uncounted; freed with the component";
}

TEST_F(ComponentTest, CastsAreObservedByComponentAndInterface)
{
    const VEXBaseUnknown_var base = VEXAdopt<VEXBaseUnknown>(new Named(Type()));
    vex::probe::StartRecording();
    void* object = nullptr;
    {
        const VEXIAlias_var alias = base;
        const VEXIContainer_var container = alias;
        base->QueryInterface("no\nsuch", &object);
    }
    const std::vector<vex::probe::Call> calls = vex::probe::StopRecording();
    ASSERT_EQ(3U, calls.size());
    EXPECT_EQ("cast:ComponentTestNamed->VEXIAlias", calls[0].name);
    EXPECT_EQ("S_OK pointer", calls[0].result);
    EXPECT_EQ("cast:ComponentTestNamed->VEXIContainer", calls[1].name);
    EXPECT_EQ("E_NOINTERFACE null", calls[1].result);
    EXPECT_EQ(R"(cast:ComponentTestNamed->"no\nsuch")", calls[2].name);
}

TEST_F(ComponentTest, CastsBreak)
{
    const VEXBaseUnknown_var base = VEXAdopt<VEXBaseUnknown>(new Named(Type()));
    std::string error;
    for (const char* const outcome : {"E_NOINTERFACE", "null"}) {
        const std::string name = "cast:ComponentTestNamed->VEXIAlias=";
        ASSERT_TRUE(vex::probe::SetFaults(name + outcome, error)) << error;
        EXPECT_FALSE(VEXIAlias_var(base));
        EXPECT_TRUE(VEXIDescendants_var(base));
    }
    ASSERT_TRUE(vex::probe::SetFaults("cast:ComponentTest*->VEXIAlias#2=E_NOINTERFACE", error))
        << error;
    EXPECT_TRUE(VEXIAlias_var(base));
    EXPECT_FALSE(VEXIAlias_var(base));
    EXPECT_TRUE(VEXIAlias_var(base));
    ASSERT_TRUE(vex::probe::SetFaults("cast:ComponentTestNamed*=E_NOINTERFACE", error)) << error;
    EXPECT_FALSE(VEXIDescendants_var(base));
}

TEST_F(ComponentTest, AccountsTellWhatIsStillHeld)
{
    const VEXBaseUnknown_var before = VEXAdopt<VEXBaseUnknown>(new Named(Type()));
    OwnedByTree owned(Type());
    auto* const kept = new Named(Type());
    vex::probe::StartRecording();
    EXPECT_THAT(vex::probe::HeldObjects(), IsEmpty());
    {
        const VEXIAlias_var alias = VEXShare<VEXBaseUnknown>(&owned);
        const VEXIAlias_var again = before;
        const VEXBaseUnknown_var fresh = VEXAdopt<VEXBaseUnknown>(new Named(Type()));
        EXPECT_THAT(vex::probe::HeldObjects(), ElementsAre(Pair("ComponentTestNamed", 2)));
        kept->KeepByHost(true);
        kept->AddRef();
        EXPECT_THAT(vex::probe::HeldObjects(), ElementsAre(Pair("ComponentTestNamed", 3)));
    }
    EXPECT_THAT(vex::probe::HeldObjects(), ElementsAre(Pair("ComponentTestNamed", 1)));
    kept->Release();
    EXPECT_THAT(vex::probe::HeldObjects(), IsEmpty());
    kept->AddRef();
    kept->KeepByHost(false);
    kept->Release();
    EXPECT_THAT(vex::probe::HeldObjects(), ElementsAre(Pair("ComponentTestNamed", 1)))
        << "the host has let go of it, the program has not";
    kept->Release();
    EXPECT_THAT(vex::probe::HeldObjects(), IsEmpty());
    vex::probe::StopRecording();
}

TEST_F(ComponentTest, LettingGoByTheHostNotesNoHolderFromBeforeTheRecording)
{
    auto* const kept = new Named(Type());
    kept->KeepByHost(true);
    kept->AddRef();
    vex::probe::StartRecording();
    kept->KeepByHost(false);
    kept->Release();
    EXPECT_THAT(vex::probe::HeldObjects(), IsEmpty());
    kept->Release();
    vex::probe::StopRecording();
}

using ComponentDeathTest = ComponentTest;

TEST_F(ComponentDeathTest, OneReleaseTooManyEndsTheProcess)
{
    OwnedByTree owned(Type());
    EXPECT_DEATH(owned.Release(), "ComponentTestNamed: released by more than hold it");
}

}  // namespace
