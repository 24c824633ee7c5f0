// SPDX-License-Identifier: Apache-2.0
// From the root product to the document of one of its parts.
#include "host/product/ProductStructure.h"
#include "library/geometry/GeometryFixture.h"

#include <filesystem>

namespace hlxtest {
namespace {

class PartDocumentTest : public WatchedGeometryTest
{
protected:
    Outcome Find(const char* faults = "")
    {
        return RunWith(faults, [&] { return testCase.GetPartDocument(part); });
    }

    /// The child of the root product at an index from 1.
    VEXBaseUnknown_var Child(int index)
    {
        const std::unique_ptr<VEXListValVEXBaseUnknown_var> children(
            testCase._RootProduct->GetChildren("VEXIProduct"));
        return (*children)[index];
    }

    VEXDocument* part = nullptr;
};

TEST_F(PartDocumentTest, IsThatOfTheFirstChildUnlessAnotherIsChosen)
{
    BeginWith(SeveralPartsSpecimen(folder));
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(NameOf(part), "box.VEXPart");
    EXPECT_EQ(AliasOf(testCase._PartLink), "box.1");
    EXPECT_TRUE(testCase._PartLink == Child(1));
}

TEST_F(PartDocumentTest, IsThatOfTheChosenChild)
{
    BeginWith(SeveralPartsSpecimen(folder));
    const struct
    {
        int index;
        const char *part, *link;
    } rows[] = {{2, "cylinder.VEXPart", "cylinder.1"},
                {3, "torus.VEXPart", "torus.1"},
                {1, "box.VEXPart", "box.1"}};
    for (const auto& row : rows) {
        testCase._PartIndex = row.index;
        EXPECT_EQ(Find(), (Outcome{S_OK, "", ""})) << row.index;
        EXPECT_EQ(NameOf(part), row.part);
        EXPECT_EQ(AliasOf(testCase._PartLink), row.link);
        EXPECT_EQ(testCase._PartIndex, row.index);
    }
}

TEST_F(PartDocumentTest, OfAChildThatIsNotThereIsNotFoundAndTheFormerLinkIsForgotten)
{
    BeginWith(SeveralPartsSpecimen(folder));
    for (const int index : {4, 99, 0, -1}) {
        testCase._PartIndex = 1;
        ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
        ASSERT_NE(testCase._PartLink, nullptr);
        VEXDocument* const former = part;
        testCase._PartIndex = index;
        EXPECT_EQ(Find(), (Outcome{E_FAIL, kNoNavigation, ""})) << index;
        EXPECT_EQ(testCase._PartLink, nullptr) << index;
        EXPECT_EQ(part, former) << index;
    }
}

TEST_F(PartDocumentTest, WithoutARootProductIsNotFound)
{
    VEXDocument* const former = document.Get();
    part = former;
    EXPECT_EQ(Find(), (Outcome{E_FAIL, kNoNavigation, ""}));
    EXPECT_EQ(part, former);
    EXPECT_EQ(testCase._PartLink, nullptr);
}

TEST_F(PartDocumentTest, OfADocumentLinkedStraightToAPartIsNotFound)
{
    Link(PartSpecimen(folder, "box"));
    ASSERT_EQ(testCase.InitializeRootProduct(Manager()), S_OK);
    EXPECT_EQ(Find(), (Outcome{E_FAIL, kNoNavigation, ""}));
    EXPECT_EQ(part, nullptr);
}

TEST_F(PartDocumentTest, FailsWithoutAWordWhenOnlyTheLinkOfAnEarlierCallIsThere)
{
    BeginWithProduct("box");
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    VEXDocument* const other = document.Get();
    part = other;
    testCase._RootProduct = nullptr;
    EXPECT_EQ(Find(), (Outcome{E_FAIL, "", ""}));
    EXPECT_EQ(part, other);
    EXPECT_EQ(AliasOf(testCase._PartLink), "box.1");
}

TEST_F(PartDocumentTest, FailsWithOneMessageWhenAListIsMissingAndAnEarlierLinkIsThere)
{
    BeginWithProduct("box");
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    VEXDocument* const other = document.Get();
    part = other;
    for (const char* const faults :
         {"VEXIProduct::GetChildren=null", "VEXIProduct::GetChildren=empty"}) {
        EXPECT_EQ(Find(faults), (Outcome{E_FAIL, kNoChildren, ""})) << faults;
        EXPECT_EQ(part, other);
        EXPECT_EQ(AliasOf(testCase._PartLink), "box.1");
    }
}

TEST_F(PartDocumentTest, OfAProductWithoutChildrenIsNotFound)
{
    VEXDocument* product = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXProduct", product), S_OK);
    ASSERT_EQ(VEXDocumentServices::SaveAs(*product, folder.File("bare.VEXProduct").c_str(), "", 0),
              S_OK);
    BeginWith(folder.File("bare.VEXProduct"));
    EXPECT_EQ(Find(), (Outcome{E_FAIL, kNoChildren + kNoNavigation, ""}));
    EXPECT_EQ(part, nullptr);
}

TEST_F(PartDocumentTest, OfAChildWithoutAPartIsNotFound)
{
    VEXDocument* product = nullptr;
    ASSERT_EQ(VEXDocumentServices::New("VEXProduct", product), S_OK);
    vex::Feature& root = *vex::RootObject(*vex::Document::From(product));
    root.Tree()->Create(root.Kind(), &root);
    ASSERT_EQ(VEXDocumentServices::SaveAs(*product, folder.File("empty.VEXProduct").c_str(), "", 0),
              S_OK);
    BeginWith(folder.File("empty.VEXProduct"));
    EXPECT_EQ(Find(), (Outcome{E_FAIL, kNoPart, ""}));
    EXPECT_EQ(part, nullptr);
    EXPECT_TRUE(testCase._PartLink == Child(1));
}

TEST_F(PartDocumentTest, OfAMissingFileIsNotFoundAndThePlatformSaysWhy)
{
    BeginWithProduct("box");
    std::filesystem::remove(folder.File("box.VEXPart"));
    EXPECT_EQ(Find(), (Outcome{E_FAIL, kNoPart,
                               "vex: '" + folder.File("box.VEXPart") +
                                   "': there is no such file. Check the path.\n"}));
    EXPECT_EQ(part, nullptr);
}

class PartDocumentExitTest : public PartDocumentTest,
                             public testing::WithParamInterface<GeometryExit>
{};

TEST_P(PartDocumentExitTest, FailsWithAMessageAndLeavesTheDocument)
{
    BeginWithProduct("box");
    VEXDocument* const former = document.Get();
    part = former;
    EXPECT_EQ(Find(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(part, former);
}

INSTANTIATE_TEST_SUITE_P(
    Of, PartDocumentExitTest,
    testing::Values(
        GeometryExit{"NoListOfChildren", "VEXIProduct::GetChildren=null", E_FAIL,
                     kNoChildren + kNoNavigation},
        GeometryExit{"NoChildren", "VEXIProduct::GetChildren=empty", E_FAIL,
                     kNoChildren + kNoNavigation},
        GeometryExit{"NoLink", "cast:VEXProductNode->VEXILinkableObject=E_NOINTERFACE", E_FAIL,
                     kNoNavigation},
        GeometryExit{"EmptyLink", "cast:VEXProductNode->VEXILinkableObject=null", E_FAIL,
                     kNoNavigation},
        GeometryExit{"NoDescendants", "cast:VEXProductNode->VEXIDescendants=E_NOINTERFACE", E_FAIL,
                     kNoNavigation},
        GeometryExit{"EmptyDescendants", "cast:VEXProductNode->VEXIDescendants=null", E_FAIL,
                     kNoNavigation},
        GeometryExit{"FailingList", "VEXIDescendants::GetAllChildren=E_ACCESSDENIED", E_FAIL,
                     kNoPart},
        GeometryExit{"EmptyList", "VEXIDescendants::GetAllChildren=empty", E_FAIL, kNoPart}),
    NameOfExit);

/// A test case with children of its own.
class Family : public ExposedTestCase
{
public:
    VEXListValVEXBaseUnknown_var* GetChildren() override { return children.release(); }

    std::unique_ptr<VEXListValVEXBaseUnknown_var> children;
};

TEST_F(PartDocumentTest, IsThatOfTheChildrenWhichTheCaseItselfNames)
{
    BeginWith(SeveralPartsSpecimen(folder));
    Family family;
    family._RootProduct = testCase._RootProduct;
    family.children = std::make_unique<VEXListValVEXBaseUnknown_var>();
    family.children->Append(Child(3));
    EXPECT_EQ(OutcomeOf([&] { return family.GetPartDocument(part); }), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(NameOf(part), "torus.VEXPart");
    part = nullptr;
    EXPECT_EQ(OutcomeOf([&] { return family.GetPartDocument(part); }),
              (Outcome{E_FAIL, kNoChildren, ""}));
    EXPECT_EQ(part, nullptr);
}

TEST_F(PartDocumentTest, DoesNotAskForChildrenWithoutARootProduct)
{
    BeginWith(SeveralPartsSpecimen(folder));
    Family family;
    family.children = std::make_unique<VEXListValVEXBaseUnknown_var>();
    family.children->Append(Child(3));
    EXPECT_EQ(OutcomeOf([&] { return family.GetPartDocument(part); }),
              (Outcome{E_FAIL, kNoNavigation, ""}));
    EXPECT_NE(family.children, nullptr);
    EXPECT_EQ(family._PartLink, nullptr);
}

TEST_F(PartDocumentTest, OfAnObjectThatCannotBeLinkedToIsNotFound)
{
    BeginWithProduct("box");
    for (const char* const faults : {"cast:VEXPart->VEXILinkableObject=E_NOINTERFACE",
                                     "cast:VEXPart->VEXILinkableObject=null"}) {
        EXPECT_EQ(Find(faults), (Outcome{E_FAIL, kNoPartDocument, ""})) << faults;
    }
}

TEST_F(PartDocumentTest, ThatIsMissingIsNotFoundAndAFormerOneIsForgotten)
{
    BeginWithProduct("box");
    part = document.Get();
    EXPECT_EQ(Find("VEXILinkableObject::GetDocument=null"), (Outcome{E_FAIL, kNoPartDocument, ""}));
    EXPECT_EQ(part, nullptr);
}

TEST_F(PartDocumentTest, IsFoundInAListThatFailedThoughGiven)
{
    BeginWithProduct("box");
    EXPECT_EQ(Find("VEXIDescendants::GetAllChildren=E_FAIL,keep"), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(NameOf(part), "box.VEXPart");
}

}  // namespace
}  // namespace hlxtest
