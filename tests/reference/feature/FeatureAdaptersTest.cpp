// SPDX-License-Identifier: Apache-2.0
// Features, attributes and containers through the interfaces that programs use.
#include "TestDocument.h"
#include "host/feature/DocumentAdapters.h"
#include "host/feature/FeatureAdapters.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <memory>

namespace {

using namespace vex;
using featuretest::Add;
using featuretest::Type;

template <class List>
std::unique_ptr<List> Owned(List* list)
{
    return std::unique_ptr<List>(list);
}

class FeatureAdaptersTest : public testing::Test
{
protected:
    featuretest::ClosesAll closesAll;
    Document* document = [] {
        Document* made = nullptr;
        std::string error;
        EXPECT_EQ(DocumentSession::Instance().New("VEXPart", made, error), S_OK) << error;
        return made;
    }();
    Feature& container = *document->SpecContainer();
    Feature& thing = Add(container, "TestThing", "thing");
    VEXISpecObject_var object = VEXShare(thing.Face<VEXISpecObject>());

    /// The names of the attributes of a kind, in order.
    std::string Names(const char* kind) const
    {
        const auto list = Owned(object->ListAttributes(kind, "", ""));
        std::string names;
        for (int i = 1; list != nullptr && i <= list->Size(); ++i) {
            const VEXISpecAttribute_var attribute = VEXAdopt((*list)[i]);
            names += std::string(attribute->GetName().View()) + ' ';
        }
        return names;
    }
};

TEST_F(FeatureAdaptersTest, AFeatureTellsItsTypeAndFather)
{
    EXPECT_EQ(object->GetType(), "TestThing");
    EXPECT_EQ(object->GetFather(), VEXShare(container.Face<VEXISpecObject>()));
    EXPECT_FALSE(object->GetFather()->GetFather());
}

TEST_F(FeatureAdaptersTest, AttributesAreListedByKind)
{
    EXPECT_EQ(Names(""), "Flag Count Size Label Other File Samples Rows ");
    EXPECT_EQ(Names("boolean"), "Flag ");
    EXPECT_EQ(Names("integer"), "Count ");
    EXPECT_EQ(Names("double"), "Size ");
    EXPECT_EQ(Names("string"), "Label ");
    EXPECT_EQ(Names("VEXISpecObject"), "Other ");
    EXPECT_EQ(Names("link"), "File ");
    EXPECT_EQ(Names("list"), "Samples ");
    EXPECT_EQ(Names("table"), "Rows ");
    EXPECT_EQ(Names("other"), "");
}

TEST_F(FeatureAdaptersTest, AReferenceAttributeGivesItsTarget)
{
    Feature& target = Add(container, "TestThing", "target");
    const auto list = Owned(object->ListAttributes("VEXISpecObject", "", ""));
    ASSERT_EQ(list->Size(), 1);
    const VEXISpecAttribute_var attribute = VEXAdopt((*list)[1]);
    EXPECT_FALSE(VEXAdopt(attribute->GetValueObject()));
    thing.Set("Other", Reference{target.Id()});
    EXPECT_EQ(VEXAdopt(attribute->GetValueObject()), VEXShare(target.Face<VEXISpecObject>()));
    document->Tree().Delete(target);
    EXPECT_FALSE(VEXAdopt(attribute->GetValueObject()));
    document->Tree().Delete(thing);
    EXPECT_EQ(attribute->IsNull(), 1);
    EXPECT_FALSE(VEXAdopt(attribute->GetValueObject()));
    EXPECT_EQ(attribute->GetName(), "Other");
    EXPECT_EQ(object->ListAttributes("", "", ""), nullptr);
}

TEST_F(FeatureAdaptersTest, AnotherKindOfAttributeHasNoObject)
{
    const auto list = Owned(object->ListAttributes("double", "", ""));
    const VEXISpecAttribute_var attribute = VEXAdopt((*list)[1]);
    EXPECT_EQ(attribute->GetValueObject(), nullptr);
}

TEST_F(FeatureAdaptersTest, TheAliasIsReadAndWritten)
{
    const VEXIAlias_var alias = object;
    EXPECT_EQ(alias->GetAlias(), "thing");
    EXPECT_EQ(alias->SetAlias("Größe \"2\"\n"), S_OK);
    EXPECT_EQ(alias->GetAlias(), "Größe \"2\"\n");
    EXPECT_EQ(alias->SetAlias("\xFF"), E_INVALIDARG);
    EXPECT_EQ(alias->SetAlias(VEXUnicodeString(std::string("a\0b", 3))), E_INVALIDARG);
    EXPECT_EQ(alias->GetAlias(), "Größe \"2\"\n");
    EXPECT_EQ(alias->SetAlias(""), S_OK);
    EXPECT_TRUE(alias->GetAlias().IsEmpty());
}

TEST_F(FeatureAdaptersTest, AContainerListsWhatHasAnInterface)
{
    Add(thing, "TestThing", "below");
    const VEXIContainer_var members = VEXShare(container.Face<VEXIContainer>());
    // The part that a new document has and its body, the thing, and the one below it.
    EXPECT_EQ(members->GetMemberCount("VEXISpecObject"), 4);
    EXPECT_EQ(members->GetMemberCount("VEXILinkableObject"), 2);
    EXPECT_EQ(members->GetMemberCount("NoSuchInterface"), 0);
    EXPECT_EQ(members->GetMemberCount(nullptr), 0);
    const auto list = Owned(members->ListMembers("VEXIAlias"));
    ASSERT_EQ(list->Size(), 4);
    EXPECT_EQ(VEXIAlias_var((*list)[2])->GetAlias(), "Main Body");
    EXPECT_EQ(VEXIAlias_var((*list)[3])->GetAlias(), "thing");
    EXPECT_EQ(VEXIAlias_var((*list)[4])->GetAlias(), "below");
    EXPECT_EQ(Owned(members->ListMembers(nullptr))->Size(), 0);
}

TEST_F(FeatureAdaptersTest, DescendantsComeEachBeforeThoseBelowIt)
{
    Add(Add(thing, "TestThing", "1"), "TestThing", "1.1");
    Add(thing, "TestThing", "2");
    const VEXIDescendants_var all = VEXShare(container.Face<VEXIDescendants>());
    VEXListValVEXISpecObject_var list;
    ASSERT_EQ(all->GetAllChildren("VEXIAlias", list), S_OK);
    std::string names;
    for (int i = 1; i <= list.Size(); ++i) {
        names += std::string(VEXIAlias_var(list[i])->GetAlias().View()) + ' ';
    }
    EXPECT_EQ(names, " Main Body thing 1 1.1 2 ");
    EXPECT_EQ(all->GetAllChildren("VEXIAlias", list), S_OK);
    EXPECT_EQ(list.Size(), 12);
}

TEST_F(FeatureAdaptersTest, NavigationShowsTheChildrenInOrder)
{
    Feature& child = Add(thing, "TestThing", "child");
    Add(child, "TestThing", "grandchild");
    Add(thing, "TestThing", "second");
    const NavigateAdapter navigate(thing);
    const auto list = Owned(navigate.GetChildren());
    ASSERT_EQ(list->Size(), 2);
    EXPECT_EQ(VEXIAlias_var((*list)[1])->GetAlias(), "child");
    EXPECT_EQ(VEXIAlias_var((*list)[2])->GetAlias(), "second");
    VEXISpecObject* self = nullptr;
    ASSERT_EQ(navigate.GetSpecObject(self), S_OK);
    EXPECT_EQ(VEXAdopt(self), object);
    document->Tree().Delete(thing);
    EXPECT_EQ(navigate.GetChildren(), nullptr);
    EXPECT_EQ(navigate.GetSpecObject(self), E_FAIL);
    EXPECT_EQ(self, nullptr);
}

TEST_F(FeatureAdaptersTest, DocumentsGiveTheirContainersAndRoots)
{
    const VEXIContainerOfDocument_var containers = VEXShare(document->AsVEXDocument());
    VEXIContainer* raw = nullptr;
    ASSERT_EQ(containers->GetSpecContainer(raw), S_OK);
    EXPECT_EQ(VEXAdopt(raw), VEXShare(container.Face<VEXIContainer>()));
    ASSERT_EQ(containers->GetBRepContainer(raw), S_OK);
    EXPECT_EQ(VEXAdopt(raw), VEXShare(document->BRepContainer()->Face<VEXIContainer>()));
    const VEXIDocRoots_var roots = containers;
    const auto list = Owned(roots->GetRoots());
    ASSERT_EQ(list->Size(), 2);
    EXPECT_EQ(VEXISpecObject_var((*list)[1])->GetType(), "VEXPart");
    EXPECT_EQ(VEXISpecObject_var((*list)[2]), object);
}

TEST_F(FeatureAdaptersTest, InterfacesOfOneFeatureAreFreedWithItsLastHolder)
{
    object.Reset();
    {
        const VEXISpecObject_var spec = VEXShare(thing.Face<VEXISpecObject>());
        const VEXIAlias_var alias = spec;
        EXPECT_EQ(alias, spec);
        EXPECT_EQ(alias->GetImpl(), &thing);
    }
    // Made anew, with nothing left of before but the feature.
    const VEXIAlias_var again = VEXShare(thing.Face<VEXIAlias>());
    EXPECT_EQ(again->GetAlias(), "thing");
}

}  // namespace
