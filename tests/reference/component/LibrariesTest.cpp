// SPDX-License-Identifier: Apache-2.0
// Component libraries found on the search path, and what is made from them.
#include "VEXComponents.h"
#include "VEXFeatures.h"
#include "host/component/ComponentTypes.h"
#include "host/system/Probes.h"
#include "support/Capture.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

namespace {

using hlxtest::Capture;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using vex::ComponentTypes;

constexpr const char* specimens = HLX_BINARY_DIR "/tests/specimens";
constexpr const char* bad = HLX_BINARY_DIR "/tests/specimens/bad";

class LibrariesTest : public testing::Test
{
protected:
    LibrariesTest() { SetPath(std::string("/nowhere::") + specimens + ":" + bad); }
    ~LibrariesTest() override { unsetenv("VEX_COMPONENT_PATH"); }

    static void SetPath(const std::string& path) { setenv("VEX_COMPONENT_PATH", path.c_str(), 1); }

    static std::string Refusal(std::string_view name)
    {
        std::string error;
        EXPECT_FALSE(ComponentTypes::Instance().Load(name, error));
        return error;
    }
};

TEST_F(LibrariesTest, TheSearchPathIsTheUsersThenTheHosts)
{
    const std::vector<std::string> path = ComponentTypes::SearchPath();
    ASSERT_EQ(4U, path.size());
    EXPECT_EQ("/nowhere", path[0]);
    EXPECT_EQ(specimens, path[1]);
    EXPECT_EQ(HLX_BINARY_DIR "/lib", path[3]);
    SetPath("relative");
    EXPECT_EQ(std::filesystem::current_path() / "relative", ComponentTypes::SearchPath()[0]);
    unsetenv("VEX_COMPONENT_PATH");
    EXPECT_EQ(1U, ComponentTypes::SearchPath().size());
}

TEST_F(LibrariesTest, AreLoadedOnce)
{
    std::string error;
    EXPECT_TRUE(ComponentTypes::Instance().Load("SpecimenGood", error)) << error;
    SetPath("/nowhere");
    EXPECT_TRUE(ComponentTypes::Instance().Load("SpecimenGood", error)) << error;
    EXPECT_EQ("SpecimenGood", ComponentTypes::Instance().Require("SpecimenGoodObject").library);
}

TEST_F(LibrariesTest, AreRefusedByNameWithTheRemedy)
{
    const std::string folder = std::string("'") + bad;
    EXPECT_THAT(Refusal("SpecimenOtherVersion"),
                AllOf(HasSubstr(folder + "/libSpecimenOtherVersion.so'"),
                      HasSubstr("built for version 2 of component libraries"),
                      HasSubstr("build it again")));
    EXPECT_THAT(Refusal("SpecimenWithoutEntry"),
                AllOf(HasSubstr(folder), HasSubstr("it has no function VEXGetComponentLibrary")));
    EXPECT_THAT(Refusal("SpecimenWithoutTable"),
                AllOf(HasSubstr(folder), HasSubstr("answers no table")));
    EXPECT_THAT(Refusal("SpecimenRefusing"),
                AllOf(HasSubstr(folder), HasSubstr("it did not start (E_FAIL)")));
    EXPECT_THAT(Refusal("SpecimenOtherName"),
                AllOf(HasSubstr(folder), HasSubstr("calls itself 'SomethingElse'")));
    std::string error;
    ASSERT_TRUE(ComponentTypes::Instance().Load("SpecimenGood", error)) << error;
    EXPECT_THAT(Refusal("SpecimenDuplicate"),
                AllOf(HasSubstr("'SpecimenDuplicate'"),
                      HasSubstr("stands in library 'SpecimenGood' already")));
    EXPECT_EQ(nullptr, ComponentTypes::Instance().Find("SpecimenRefusingObject"));
}

TEST_F(LibrariesTest, WhatIsNotThereIsNamedWithWhereItWasLookedFor)
{
    EXPECT_THAT(
        Refusal("NoSuchLibrary"),
        AllOf(HasSubstr("component library 'NoSuchLibrary': no libNoSuchLibrary.so in /nowhere, "),
              HasSubstr("VEX_COMPONENT_PATH")));
    for (const char* const name : {"", "../specimens/SpecimenGood", "a/b", "a\nb", "a.b"}) {
        EXPECT_THAT(Refusal(name), HasSubstr("is no name of a component library"));
    }
    const hlxtest::TemporaryFolder folder;
    hlxtest::WriteFile(folder.File("libNotALibrary.so"), "text");
    SetPath(folder.Path());
    EXPECT_THAT(Refusal("NotALibrary"),
                AllOf(HasSubstr(folder.Path()), HasSubstr("it cannot be opened")));
}

TEST_F(LibrariesTest, ObjectsOfAProcessAreMadeOnce)
{
    std::string error;
    ASSERT_TRUE(ComponentTypes::Instance().Load("SpecimenGood", error)) << error;
    vex::probe::StartRecording();
    void* one = nullptr;
    void* two = nullptr;
    ASSERT_EQ(S_OK, VEXInstantiateComponent("SpecimenGoodObject", IID_VEXIAlias, &one));
    ASSERT_EQ(S_OK, VEXInstantiateComponent("SpecimenGoodObject", IID_VEXIAlias, &two));
    EXPECT_EQ(one, two);
    EXPECT_TRUE(static_cast<VEXIAlias*>(one)->GetAlias() == "SpecimenGood");
    static_cast<VEXIAlias*>(one)->Release();
    EXPECT_EQ(1U, static_cast<VEXIAlias*>(one)->Release()) << "the host's own";
    EXPECT_THAT(vex::probe::HeldObjects(), IsEmpty()) << "one that is not released is no leak";
    EXPECT_EQ(2U, vex::probe::StopRecording().size());
}

TEST_F(LibrariesTest, InstantiationRefuses)
{
    std::string error;
    ASSERT_TRUE(ComponentTypes::Instance().Load("SpecimenGood", error)) << error;
    ASSERT_TRUE(ComponentTypes::Instance().Load("SpecimenUnmakeable", error)) << error;
    int before = 0;
    void* object = &before;
    EXPECT_EQ(E_POINTER, VEXInstantiateComponent("SpecimenGoodObject", IID_VEXIAlias, nullptr));
    EXPECT_EQ(E_POINTER, VEXInstantiateComponent(nullptr, IID_VEXIAlias, &object));
    EXPECT_EQ(nullptr, object);
    object = &before;
    EXPECT_EQ(E_FAIL, VEXInstantiateComponent("NoSuchClass", IID_VEXIAlias, &object));
    EXPECT_EQ(nullptr, object);
    EXPECT_EQ(E_FAIL, VEXInstantiateComponent("SpecimenUnmakeableObject", IID_VEXIAlias, &object));
    EXPECT_EQ(E_NOINTERFACE,
              VEXInstantiateComponent("SpecimenGoodObject", IID_VEXIContainer, &object));
    EXPECT_EQ(nullptr, object);
}

TEST_F(LibrariesTest, ExternalObjectsBelongToTheHost)
{
    VEXBaseUnknown* const one =
        VEXCreateExternalObject("SpecimenGoodObject", nullptr, "SpecimenGood", nullptr);
    ASSERT_NE(nullptr, one);
    EXPECT_EQ(one, VEXCreateExternalObject("SpecimenGoodObject", nullptr, "SpecimenGood", nullptr));
    EXPECT_NE(one, VEXCreateExternalObject("SpecimenGoodObject", "other", "SpecimenGood", nullptr));
    for (int i = 0; i < 3; ++i) {
        VEXIAlias_var alias = VEXShare(one);
        EXPECT_TRUE(alias->GetAlias() == "SpecimenGood");
        one->AddRef();
        EXPECT_EQ(2U, one->Release()) << "the host's and the handle's";
    }
}

TEST_F(LibrariesTest, ExternalObjectsAreRefusedOnStandardError)
{
    const auto refusal = [](const char* type, const char* library) {
        return Capture([&] {
                   EXPECT_EQ(nullptr, VEXCreateExternalObject(type, nullptr, library, nullptr));
               })
            .err;
    };
    EXPECT_THAT(
        refusal("SpecimenOther", "SpecimenGood"),
        HasSubstr("component library 'SpecimenGood': it makes no object of type 'SpecimenOther'"));
    EXPECT_THAT(refusal("SpecimenGoodObject", "SpecimenUnmakeable"),
                HasSubstr("it makes no object of type"));
    EXPECT_THAT(refusal("SpecimenUnmakeableObject", "SpecimenUnmakeable"),
                HasSubstr("could not be made"));
    EXPECT_THAT(refusal("X", "NoSuchLibrary"), HasSubstr("no libNoSuchLibrary.so in"));
    EXPECT_THAT(refusal(nullptr, nullptr), HasSubstr("'' is no name of a component library"));
}

}  // namespace
