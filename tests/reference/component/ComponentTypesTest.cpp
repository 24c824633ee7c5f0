// SPDX-License-Identifier: Apache-2.0
// Merging of component tables.
#include "VEXFeatures.h"
#include "host/component/Adapter.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using testing::HasSubstr;
using vex::ComponentType;
using vex::ComponentTypes;

VEXBaseUnknown* NoInterface(VEXBaseUnknown&)
{
    return nullptr;
}

constexpr VEXInterfaceRow first[] = {{"ComponentTypesTestFirst", &NoInterface}};
constexpr VEXInterfaceRow second[] = {{"ComponentTypesTestSecond", &NoInterface},
                                      {"ComponentTypesTestThird", &NoInterface}};
constexpr VEXInterfaceRow twice[] = {first[0], second[0], first[0]};
constexpr VEXInterfaceRow withoutMaker[] = {{"ComponentTypesTestFirst", nullptr}};
constexpr VEXInterfaceRow withoutName[] = {{nullptr, &NoInterface}};

std::string Merge(const char* name, std::span<const VEXComponentRow> rows,
                  HRESULT (*start)() = nullptr, unsigned int version = VEXComponentLibraryVersion)
{
    std::string error;
    const bool merged = ComponentTypes::Instance().Merge({version, name, rows, start}, error);
    EXPECT_EQ(merged, error.empty());
    return error;
}

bool IsThere(std::string_view name)
{
    const std::vector<const ComponentType*> all = ComponentTypes::Instance().All();
    const bool listed = std::any_of(all.begin(), all.end(),
                                    [&](const ComponentType* type) { return type->name == name; });
    EXPECT_EQ(listed, ComponentTypes::Instance().Find(name) != nullptr);
    return listed;
}

TEST(ComponentTypesTest, RowsExtendRowsOfThisOrAnEarlierLibrary)
{
    const VEXComponentRow rows[] = {{"MergeA", nullptr, first, nullptr},
                                    {"MergeB", "MergeA", second, nullptr}};
    EXPECT_EQ("", Merge("MergeOne", rows));
    const VEXComponentRow later[] = {{"MergeC", "MergeB", {}, nullptr}};
    EXPECT_EQ("", Merge("MergeTwo", later));
    const ComponentType& type = ComponentTypes::Instance().Require("MergeC");
    EXPECT_EQ("MergeTwo", type.library);
    EXPECT_EQ(3U, type.interfaces.size());
    EXPECT_NE(nullptr, type.Find(VEXGuidOfName("ComponentTypesTestFirst")));
    EXPECT_NE(nullptr, type.Find(VEXGuidOfName("ComponentTypesTestThird")));
    EXPECT_EQ(nullptr, type.Find(VEXGuidOfName("ComponentTypesTestFourth")));
    EXPECT_TRUE(type.IsKindOf("MergeA"));
    EXPECT_FALSE(type.IsKindOf("MergeD"));
    EXPECT_FALSE(ComponentTypes::Instance().Require("MergeA").IsKindOf("MergeC"));
}

TEST(ComponentTypesTest, ADuplicateNamesBothLibrariesAndChangesNothing)
{
    const VEXComponentRow rows[] = {{"DuplicateA", nullptr, {}, nullptr}};
    ASSERT_EQ("", Merge("DuplicateOne", rows));
    const VEXComponentRow again[] = {{"DuplicateB", nullptr, {}, nullptr},
                                     {"DuplicateA", nullptr, {}, nullptr}};
    EXPECT_EQ(
        "component library 'DuplicateTwo': component 'DuplicateA' stands in library 'DuplicateOne' "
        "already",
        Merge("DuplicateTwo", again));
    EXPECT_FALSE(IsThere("DuplicateB"));
    const VEXComponentRow inItself[] = {{"DuplicateC", nullptr, {}, nullptr},
                                        {"DuplicateC", nullptr, {}, nullptr}};
    EXPECT_THAT(Merge("DuplicateThree", inItself),
                HasSubstr("'DuplicateC' stands in library 'DuplicateThree'"));
    const VEXComponentRow other[] = {{"DuplicateD", nullptr, {}, nullptr}};
    EXPECT_THAT(Merge("DuplicateOne", other),
                HasSubstr("a library of this name is loaded already"));
    EXPECT_FALSE(IsThere("DuplicateD"));
}

TEST(ComponentTypesTest, ADuplicateInterfaceIsRefused)
{
    const VEXComponentRow rows[] = {{"InterfaceA", nullptr, twice, nullptr}};
    EXPECT_THAT(
        Merge("InterfaceOne", rows),
        HasSubstr(
            "component 'InterfaceA': interface 'ComponentTypesTestFirst' stands in it twice"));
    const VEXComponentRow inherited[] = {{"InterfaceB", nullptr, first, nullptr},
                                         {"InterfaceC", "InterfaceB", first, nullptr}};
    EXPECT_THAT(Merge("InterfaceTwo", inherited),
                HasSubstr("in its base 'InterfaceB' of library 'InterfaceTwo' too"));
    EXPECT_FALSE(IsThere("InterfaceB"));
}

TEST(ComponentTypesTest, WhatElseIsRefused)
{
    const VEXComponentRow good[] = {{"RefusedA", nullptr, {}, nullptr}};
    EXPECT_THAT(Merge("Refused", good, nullptr, VEXComponentLibraryVersion + 1),
                HasSubstr("component library 'Refused': it is built for version 2 of component "
                          "libraries, this host "
                          "has version 1: build it again"));
    EXPECT_THAT(Merge("Refused it", good), HasSubstr("letters, digits and underscores"));
    EXPECT_THAT(Merge(nullptr, good), HasSubstr("component library ''"));
    const VEXComponentRow noBase[] = {{"RefusedA", "NoSuchBase", {}, nullptr}};
    EXPECT_THAT(Merge("Refused", noBase),
                HasSubstr("its base 'NoSuchBase' is in no library before it"));
    const VEXComponentRow baseAfter[] = {{"RefusedA", "RefusedB", {}, nullptr},
                                         {"RefusedB", nullptr, {}, nullptr}};
    EXPECT_THAT(Merge("Refused", baseAfter), HasSubstr("its base 'RefusedB'"));
    for (const char* const name :
         {static_cast<const char*>(nullptr), "", "9a", "a->b", "a;b", "a\n"}) {
        const VEXComponentRow badName[] = {{name, nullptr, {}, nullptr}};
        EXPECT_THAT(Merge("Refused", badName), HasSubstr("is no name of a component"));
    }
    const VEXComponentRow noMaker[] = {{"RefusedA", nullptr, withoutMaker, nullptr}};
    EXPECT_THAT(Merge("Refused", noMaker), HasSubstr("has an impossible name or no maker"));
    const VEXComponentRow noName[] = {{"RefusedA", nullptr, withoutName, nullptr}};
    EXPECT_THAT(Merge("Refused", noName), HasSubstr("has an impossible name or no maker"));
    EXPECT_FALSE(IsThere("RefusedA"));
}

TEST(ComponentTypesTest, ALibraryThatDoesNotStartIsWithdrawn)
{
    static bool seenAtStart = false;
    const VEXComponentRow rows[] = {{"StartA", nullptr, {}, nullptr}};
    const auto refuse = []() -> HRESULT {
        seenAtStart = IsThere("StartA");
        return E_ACCESSDENIED;
    };
    EXPECT_EQ("component library 'Start': it did not start (E_ACCESSDENIED)",
              Merge("Start", rows, refuse));
    EXPECT_TRUE(seenAtStart);
    EXPECT_FALSE(IsThere("StartA"));
    EXPECT_EQ("", Merge("Start", rows, []() -> HRESULT { return S_FALSE; }))
        << "it can be tried again";
    EXPECT_TRUE(IsThere("StartA"));
}

TEST(ComponentTypesDeathTest, ARowThatTheProgramNeedsMustBeThere)
{
    EXPECT_DEATH(ComponentTypes::Instance().Require("NoSuchRow"),
                 "'NoSuchRow': no loaded component library");
}

}  // namespace
