// SPDX-License-Identifier: Apache-2.0
// The registry of late types: bases, refusals.
#include "TestDocument.h"
#include "host/component/ComponentTypes.h"

#include <gmock/gmock.h>

namespace {

using namespace vex;
using featuretest::Type;
using testing::HasSubstr;

TEST(LateTypes, ADerivedTypeHasTheAttributesOfItsBaseFirst)
{
    const LateType& derived = Type("TestDerived");
    EXPECT_EQ(derived.base, &Type("TestThing"));
    EXPECT_EQ(derived.IndexOf("Flag"), 0);
    EXPECT_EQ(derived.IndexOf("Extra"), 8);
    EXPECT_EQ(derived.IndexOf("Missing"), -1);
    EXPECT_TRUE(derived.IsKindOf("TestThing"));
    EXPECT_FALSE(Type("TestThing").IsKindOf("TestDerived"));
}

TEST(LateTypes, AKindWithoutARowIsAPlainFeature)
{
    EXPECT_EQ(Type("TestThing").Row().name, featureComponent);
    EXPECT_EQ(Type("VEXProductNode").Row().name, "VEXProductNode");
}

TEST(LateTypes, AKindNamedLikeAComponentThatIsNoFeatureIsAPlainFeature)
{
    std::string error;
    ASSERT_TRUE(LateTypes::Instance().Add({{"VEXSamParameter", "", {}}}, error)) << error;
    EXPECT_EQ(Type("VEXSamParameter").Row().name, featureComponent);
}

TEST(LateTypes, AnUnknownTypeIsNull)
{
    EXPECT_EQ(LateTypes::Instance().Find("NoSuchType"), nullptr);
    EXPECT_EQ(LateTypes::Instance().Find(""), nullptr);
}

struct Refused
{
    const char* what;
    std::vector<LateTypeDefinition> types;
    const char* reason;
};

TEST(LateTypes, RefusesACatalogueWholeWithTheReason)
{
    const AttributeDefinition number{"A", ValueKind::Double, 1.0};
    Type("TestThing");
    const Refused table[] = {
        {"no name", {{"", "", {}}}, "a name is missing"},
        {"twice in one", {{"TestNew", "", {}}, {"TestNew", "", {}}}, "'TestNew': defined already"},
        {"twice in two",
         {{"TestNew", "", {}}, {"TestThing", "", {}}},
         "'TestThing': defined already"},
        {"no base", {{"TestNew", "NoBase", {}}}, "its base 'NoBase' is not defined"},
        {"base after",
         {{"TestNew", "TestLater", {}}, {"TestLater", "", {}}},
         "its base 'TestLater'"},
        {"attribute twice",
         {{"TestNew", "", {number, number}}},
         "attribute 'A': the type or its base has"},
        {"attribute of base",
         {{"TestNew", "TestThing", {{"Size", ValueKind::Double, 1.0}}}},
         "attribute 'Size'"},
        {"attribute unnamed",
         {{"TestNew", "", {{"", ValueKind::Double, 1.0}}}},
         "a name is missing"},
        {"default", {{"TestNew", "", {{"A", ValueKind::Text, 1.0}}}}, "the default does not fit"},
        {"default text",
         {{"TestNew", "", {{"A", ValueKind::Text, Boxed<std::string>("\xFF")}}}},
         "the default does not fit"},
    };
    for (const Refused& row : table) {
        std::string error;
        EXPECT_FALSE(LateTypes::Instance().Add(row.types, error)) << row.what;
        EXPECT_THAT(error, HasSubstr(row.reason)) << row.what;
        EXPECT_EQ(LateTypes::Instance().Find("TestNew"), nullptr) << row.what;
    }
}

TEST(LateTypesDeathTest, AMissingTypeThatTheProgramNamesEndsIt)
{
    EXPECT_DEATH(LateTypes::Instance().Require("NoSuchType"),
                 "no catalogue defines the late type 'NoSuchType'");
}

}  // namespace
