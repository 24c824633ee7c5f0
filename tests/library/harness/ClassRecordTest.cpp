// SPDX-License-Identifier: Apache-2.0
// The run-time class records: all alike, but for the name.
#include "HLXFileDumpTestCase.h"
#include "HLXSession.h"
#include "HLXSetUnitSystem.h"
#include "HLXTestCaseDriver.h"
#include "HLXToolsOptionsManager.h"
#include "support/Capture.h"
#include "support/ExposedTestCase.h"
#include "support/PrivateMember.h"

#include <functional>
#include <memory>

namespace hlxtest {

struct TestCaseCache : MemberName<VEXMetaClass**>
{
    friend Pointer Get(TestCaseCache);
};

struct DriverCache : MemberName<VEXMetaClass**>
{
    friend Pointer Get(DriverCache);
};

struct SessionCache : MemberName<VEXMetaClass**>
{
    friend Pointer Get(SessionCache);
};

struct UnitSystemCache : MemberName<VEXMetaClass**>
{
    friend Pointer Get(UnitSystemCache);
};

struct ToolsOptionsCache : MemberName<VEXMetaClass**>
{
    friend Pointer Get(ToolsOptionsCache);
};

template struct Reveal<TestCaseCache, &HLXBaseTestCase::meta_object>;
template struct Reveal<DriverCache, &HLXTestCaseDriver::meta_object>;
template struct Reveal<SessionCache, &HLXSession::meta_object>;
template struct Reveal<UnitSystemCache, &HLXSetUnitSystem::meta_object>;
template struct Reveal<ToolsOptionsCache, &HLXToolsOptionsManager::meta_object>;

namespace {

/// What the static operations of a class answer, the place where it caches its meta-class, and how
/// to make an object of it.
struct Class
{
    const char* name;
    VEXMetaClass* (*metaObject)();
    const GUID& (*classId)();
    const char* (*className)();
    VEXBaseUnknown* (*createItself)();
    VEXMetaClass** cache;
    std::function<std::unique_ptr<VEXBaseUnknown>()> make;
};

template <class Owner, class CacheName>
Class ClassOf(const char* name, std::function<std::unique_ptr<VEXBaseUnknown>()> make)
{
    return {name,
            &Owner::MetaObject,
            &Owner::ClassId,
            &Owner::ClassName,
            &Owner::CreateItself,
            Get(CacheName()),
            std::move(make)};
}

class ClassRecord : public testing::TestWithParam<Class>
{
protected:
    const Class& theClass = GetParam();
};

TEST_P(ClassRecord, IsARootedImplementationClassOfThisLibraryWithoutALateType)
{
    const VEXMetaClass* const meta = theClass.metaObject();
    ASSERT_NE(meta, nullptr);
    EXPECT_STREQ(meta->GetName(), theClass.name);
    EXPECT_EQ(meta->GetKind(), 1);
    EXPECT_EQ(meta->GetBase(), VEXBaseUnknown::MetaObject());
    EXPECT_STREQ(meta->GetLateType(), "VEXNull");
    EXPECT_STREQ(meta->GetFramework(), "HLXTestUtilities");
}

TEST_P(ClassRecord, IsTheOneOfTheRegistry)
{
    const VEXMetaClass* const meta = theClass.metaObject();
    EXPECT_EQ(VEXMetaClass::Get(theClass.name, 0, nullptr, "another", "another"), meta);
}

TEST_P(ClassRecord, IsFetchedOnceAndCached)
{
    VEXMetaClass* const meta = theClass.metaObject();
    EXPECT_EQ(*theClass.cache, meta);

    *theClass.cache = VEXBaseUnknown::MetaObject();
    EXPECT_EQ(theClass.metaObject(), VEXBaseUnknown::MetaObject());

    *theClass.cache = nullptr;
    EXPECT_EQ(theClass.metaObject(), meta);
    EXPECT_EQ(*theClass.cache, meta);
}

TEST_P(ClassRecord, StaticOperationsAnswerItsNameAndIdentifier)
{
    EXPECT_STREQ(theClass.className(), theClass.name);
    EXPECT_EQ(&theClass.classId(), &theClass.metaObject()->GetClassId());
    EXPECT_EQ(theClass.classId(), VEXGuidOfName(theClass.name));
}

TEST_P(ClassRecord, ObjectsAnswerIt)
{
    std::unique_ptr<VEXBaseUnknown> object;
    Capture([&] { object = theClass.make(); });
    EXPECT_EQ(object->GetMetaObject(), theClass.metaObject());
    EXPECT_STREQ(object->IsA(), theClass.name);
    EXPECT_EQ(object->IsAKindOf(theClass.name), 1);
    EXPECT_EQ(object->IsAKindOf("VEXBaseUnknown"), 1);
    EXPECT_EQ(object->IsAKindOf("HLXWriteJobInputFile"), 0);
    EXPECT_EQ(object->IsAKindOf("HLX"), 0);
    EXPECT_EQ(object->IsAKindOf(""), 0);
    EXPECT_EQ(object->IsAKindOf(nullptr), 0);
    EXPECT_EQ(object->QueryInterface("VEXIAlias", nullptr), E_POINTER);
}

TEST_P(ClassRecord, TheFrameworkMakesNoObject)
{
    EXPECT_EQ(theClass.createItself(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Classes, ClassRecord,
    testing::Values(
        ClassOf<HLXBaseTestCase, TestCaseCache>("HLXBaseTestCase",
                                                [] { return std::make_unique<ExposedTestCase>(); }),
        ClassOf<HLXTestCaseDriver, DriverCache>(
            "HLXTestCaseDriver", [] { return std::make_unique<HLXTestCaseDriver>(); }),
        ClassOf<HLXSession, SessionCache>("HLXSession",
                                          [] { return std::make_unique<HLXSession>("record"); }),
        ClassOf<HLXSetUnitSystem, UnitSystemCache>(
            "HLXSetUnitSystem", [] { return std::make_unique<HLXSetUnitSystem>(); }),
        ClassOf<HLXToolsOptionsManager, ToolsOptionsCache>(
            "HLXToolsOptionsManager", [] { return std::make_unique<HLXToolsOptionsManager>(); })),
    [](const auto& parameter) { return parameter.param.name; });

TEST(HLXFileDumpTestCase, HasTheClassRecordOfItsBase)
{
    EXPECT_EQ(HLXFileDumpTestCase::MetaObject(), HLXBaseTestCase::MetaObject());
    EXPECT_STREQ(HLXFileDumpTestCase::ClassName(), "HLXBaseTestCase");
    const HLXFileDumpTestCase testCase;
    EXPECT_STREQ(testCase.IsA(), "HLXBaseTestCase");
    EXPECT_EQ(testCase.GetMetaObject(), HLXBaseTestCase::MetaObject());
    EXPECT_EQ(testCase.IsAKindOf("HLXFileDumpTestCase"), 0);
    EXPECT_EQ(testCase.IsAKindOf("HLXBaseTestCase"), 1);
}

}  // namespace

}  // namespace hlxtest
