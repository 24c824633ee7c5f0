// SPDX-License-Identifier: Apache-2.0
// Run-time classes, and what an object without a row of the component table answers.
#include "VEXFeatures.h"
#include "VEXMetaClass.h"

#include <gtest/gtest.h>

namespace {

TEST(MetaClassTest, TheFirstCallOfANameMakesIt)
{
    const VEXMetaClass* const base = VEXBaseUnknown::MetaObject();
    const VEXMetaClass* const made =
        VEXMetaClass::Get("MetaClassTestClass", VEXImplementationClass, base, "VEXNull", "Tests");
    ASSERT_NE(nullptr, made);
    EXPECT_STREQ("MetaClassTestClass", made->GetName());
    EXPECT_EQ(VEXImplementationClass, made->GetKind());
    EXPECT_EQ(base, made->GetBase());
    EXPECT_STREQ("VEXNull", made->GetLateType());
    EXPECT_STREQ("Tests", made->GetFramework());
    EXPECT_EQ(VEXGuidOfName("MetaClassTestClass"), made->GetClassId());
    EXPECT_EQ(made, VEXMetaClass::Get("MetaClassTestClass", VEXInterfaceClass, nullptr, "X", "Y"));
    EXPECT_EQ(base, made->GetBase());
}

TEST(MetaClassTest, KindsGoDownToTheRoot)
{
    const VEXMetaClass* const below =
        VEXMetaClass::Get("MetaClassTestBelow", VEXImplementationClass,
                          VEXMetaClass::Get("MetaClassTestAbove", VEXImplementationClass,
                                            VEXBaseUnknown::MetaObject(), "VEXNull", "Tests"),
                          "VEXNull", "Tests");
    EXPECT_EQ(1, below->IsAKindOf("MetaClassTestBelow"));
    EXPECT_EQ(1, below->IsAKindOf("MetaClassTestAbove"));
    EXPECT_EQ(1, below->IsAKindOf("VEXBaseUnknown"));
    EXPECT_EQ(0, below->IsAKindOf("MetaClassTest"));
    EXPECT_EQ(0, below->IsAKindOf(nullptr));
}

TEST(MetaClassTest, NullTextsHarmNothing)
{
    EXPECT_EQ(nullptr, VEXMetaClass::Get(nullptr, 1, nullptr, "VEXNull", "Tests"));
    const VEXMetaClass* const made =
        VEXMetaClass::Get("MetaClassTestNull", 1, nullptr, nullptr, nullptr);
    EXPECT_STREQ("", made->GetLateType());
    EXPECT_STREQ("", made->GetFramework());
}

TEST(BaseUnknownTest, AnswersItselfOnly)
{
    const VEXBaseUnknown_var object = VEXAdopt(VEXBaseUnknown::CreateItself());
    EXPECT_STREQ("VEXBaseUnknown", object->IsA());
    EXPECT_STREQ("VEXBaseUnknown", VEXBaseUnknown::ClassName());
    EXPECT_EQ(VEXGuidOfName("VEXBaseUnknown"), VEXBaseUnknown::ClassId());
    EXPECT_EQ(1, object->IsAKindOf("VEXBaseUnknown"));
    EXPECT_EQ(0, object->IsAKindOf(nullptr));
    EXPECT_EQ(0, object->IsNull());
    void* found = nullptr;
    EXPECT_EQ(S_OK, object->QueryInterface(IID_VEXBaseUnknown, &found));
    EXPECT_EQ(object.Get(), found);
    EXPECT_EQ(1U, object->Release());
    EXPECT_EQ(S_OK, object->QueryInterface("VEXBaseUnknown", &found));
    EXPECT_EQ(1U, object->Release());
    EXPECT_EQ(E_NOINTERFACE, object->QueryInterface(IID_VEXIAlias, &found));
    EXPECT_EQ(nullptr, found);
    const char* const noName = nullptr;
    EXPECT_EQ(E_NOINTERFACE, object->QueryInterface(noName, &found));
    EXPECT_EQ(E_POINTER, object->QueryInterface(IID_VEXBaseUnknown, nullptr));
    EXPECT_FALSE(VEXIAlias_var(object));
}

TEST(BaseUnknownTest, LateBoundCallsAreNotThere)
{
    VEXBaseUnknown object;
    unsigned int count = 7;
    void* information = &count;
    EXPECT_EQ(E_NOTIMPL, object.GetTypeInfoCount(&count));
    EXPECT_EQ(0U, count);
    EXPECT_EQ(E_NOTIMPL, object.GetTypeInfo(0, 0, &information));
    EXPECT_EQ(nullptr, information);
    EXPECT_EQ(E_NOTIMPL, object.GetIDsOfNames({}, nullptr, 0, 0, nullptr));
    EXPECT_EQ(E_NOTIMPL, object.Invoke(0, {}, 0, 0, nullptr, nullptr));
    EXPECT_EQ(E_NOTIMPL, object.ChangeComponentState(0, nullptr));
}

TEST(BaseUnknownTest, CopiesDoNotCopyTheCount)
{
    VEXBaseUnknown object;
    object.AddRef();
    VEXBaseUnknown copy(object);
    EXPECT_EQ(2U, copy.AddRef());
    copy = object;
    EXPECT_EQ(3U, copy.AddRef());
    EXPECT_EQ(1, object.IsEqual(&object));
    EXPECT_EQ(0, object.IsEqual(&copy));
    EXPECT_EQ(0, object.IsEqual(nullptr));
}

TEST(EmptyHandleDeathTest, UseEndsTheProcessAndNamesTheInterface)
{
    const VEXIAlias_var handle;
    EXPECT_DEATH(static_cast<void>(handle->GetAlias()), "VEXIAlias: '->' on an empty handle");
}

}  // namespace
