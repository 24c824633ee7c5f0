// SPDX-License-Identifier: Apache-2.0
// From the mechanical part to its geometrical element and its body.
#include "library/geometry/GeometryFixture.h"

namespace hlxtest {
namespace {

class ElementTest : public WatchedGeometryTest
{
protected:
    Outcome Find(const char* faults = "")
    {
        return RunWith(faults, [&] { return testCase.GetGeometricalElement(element); });
    }

    Outcome FindBody(const char* faults = "")
    {
        return RunWith(faults, [&] { return testCase.InitializeBody(); });
    }

    void TearDown() override
    {
        element.Reset();
        WatchedGeometryTest::TearDown();
    }

    VEXIGeometricalElement_var element;
};

// --- GetGeometricalElement ----------------------------------------------------------------------

TEST_F(ElementTest, IsTheShapeOfTheMainBody)
{
    BeginWithProduct("box");
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    ASSERT_NE(element, nullptr);
    EXPECT_STREQ(element->IsA(), "VEXImportedShape");
    EXPECT_EQ(AliasOf(testCase._MechanicalPart), "box");
    EXPECT_EQ(testCase._Body, nullptr);
}

TEST_F(ElementTest, IsThatOfTheMechanicalPartThatIsKnownWhateverIsChosenSince)
{
    BeginWith(SeveralPartsSpecimen(folder));
    ASSERT_EQ(testCase.InitializeMechanicalPart(), S_OK);
    testCase._PartIndex = 99;
    testCase._RootProduct = nullptr;
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    ASSERT_NE(element, nullptr);
    EXPECT_TRUE(VEXISpecObject_var(element)->GetFather()->GetFather() == testCase._MechanicalPart);
}

TEST_F(ElementTest, NeedsARootProduct)
{
    EXPECT_EQ(Find(), (Outcome{E_FAIL, kNoNavigation + kNoMechanicalPartAtAll, ""}));
    EXPECT_EQ(element, nullptr);
}

TEST_F(ElementTest, OfAPartWithoutGeometryIsNotThere)
{
    BeginWithProduct("without_geometry");
    EXPECT_EQ(Find(), (Outcome{E_FAIL, kNoLastShape, ""}));
    EXPECT_EQ(element, nullptr);
    EXPECT_EQ(AliasOf(testCase._MechanicalPart), "without_geometry");
    EXPECT_EQ(FindBody(), (Outcome{E_FAIL, kNoLastShape, ""}));
    EXPECT_EQ(testCase._Body, nullptr);
}

TEST_F(ElementTest, OfAFeatureThatIsNoPartIsNotThere)
{
    BeginWithProduct("box");
    testCase._MechanicalPart = testCase._RootProduct;
    EXPECT_EQ(Find(), (Outcome{E_FAIL, kNoPartRequest, ""}));
}

TEST_F(ElementTest, IsNotLookedForAfterAFailureThoughTheMechanicalPartIsThere)
{
    BeginWithProduct("box");
    EXPECT_EQ(Find("VEXIContainerOfDocument::GetSpecContainer=E_ACCESSDENIED,keep"),
              (Outcome{E_FAIL, kNoSpecContainer, ""}));
    EXPECT_EQ(element, nullptr);
    EXPECT_NE(testCase._MechanicalPart, nullptr);
}

const GeometryExit elementExits[] = {
    {"NoPart", "VEXIDescendants::GetAllChildren=empty", E_FAIL, kNoPart + kNoMechanicalPartAtAll},
    {"NoContainers", "cast:VEXPartDocument->VEXIContainerOfDocument=E_ACCESSDENIED", E_FAIL,
     kNoDocumentContainers + kNoMechanicalPartAtAll},
    {"NoMechanicalPart", "VEXIPrtContainer::GetMechanicalPart=null", E_FAIL, kNoMechanicalPart},
    {"NoRequest", "cast:VEXPart->VEXIPartRequest=E_NOINTERFACE", E_FAIL, kNoPartRequest},
    {"EmptyRequest", "cast:VEXPart->VEXIPartRequest=null", E_FAIL, kNoPartRequest},
    {"NoMainBody", "VEXIPartRequest::GetMainBody=null", E_FAIL, kNoMainBody},
    {"NoTool", "cast:VEXMechanicalTool->VEXIMechanicalTool=E_NOINTERFACE", E_FAIL,
     kNoMechanicalTool},
    {"EmptyTool", "cast:VEXMechanicalTool->VEXIMechanicalTool=null", E_FAIL, kNoMechanicalTool},
    {"NoShape", "VEXIMechanicalTool::GetLastShapedObject=null", E_FAIL, kNoLastShape},
    {"NoElement", "cast:VEXImportedShape->VEXIGeometricalElement=E_NOINTERFACE", E_FAIL,
     kNoElement},
    {"EmptyElement", "cast:VEXImportedShape->VEXIGeometricalElement=null", E_FAIL, kNoElement},
};

class ElementExitTest : public ElementTest, public testing::WithParamInterface<GeometryExit>
{};

TEST_P(ElementExitTest, OfTheElementFailsWithItsMessage)
{
    BeginWithProduct("box");
    EXPECT_EQ(Find(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(element, nullptr);
}

TEST_P(ElementExitTest, OfTheBodyIsThatOfTheElementAndAFormerBodyStays)
{
    BeginWithBody("box");
    const VEXBody_var former = testCase._Body;
    testCase._MechanicalPart = nullptr;
    testCase._PartDocContainer->Release();
    testCase._PartDocContainer = nullptr;
    EXPECT_EQ(FindBody(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(testCase._Body.Get(), former.Get());
}

INSTANTIATE_TEST_SUITE_P(Of, ElementExitTest, testing::ValuesIn(elementExits), NameOfExit);

TEST_F(ElementTest, IsKeptByTheCallerUntilThereIsAnotherAnswer)
{
    BeginWithProduct("box");
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    Find("VEXIMechanicalTool::GetLastShapedObject=null");
    EXPECT_NE(element, nullptr);
    Find("cast:VEXImportedShape->VEXIGeometricalElement=E_NOINTERFACE");
    EXPECT_EQ(element, nullptr);
}

// --- InitializeBody -----------------------------------------------------------------------------

TEST_F(ElementTest, GivesTheBody)
{
    BeginWithProduct("box");
    EXPECT_EQ(FindBody(), (Outcome{S_OK, "", ""}));
    ASSERT_NE(testCase._Body, nullptr);
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(element->GetBody().Get(), testCase._Body.Get());
}

TEST_F(ElementTest, GivesTheBodyOfTheChosenPart)
{
    BeginWith(SeveralPartsSpecimen(folder));
    testCase._PartIndex = 3;
    ASSERT_EQ(FindBody(), (Outcome{S_OK, "", ""}));
    VEXListPtrVEXCell faces;
    ASSERT_EQ(testCase._Body->GetAllCells(faces, 2), S_OK);
    ASSERT_EQ(faces.Size(), 1);
    EXPECT_EQ(faces[1]->GetKind(), "torus");
}

TEST_F(ElementTest, WithoutABodyMakesTheCaseForgetAFormerOne)
{
    BeginWithBody("box");
    EXPECT_EQ(FindBody("VEXIGeometricalElement::GetBody=null"), (Outcome{E_FAIL, kNoBody, ""}));
    EXPECT_EQ(testCase._Body, nullptr);
}

TEST_F(ElementTest, WithoutABodyIsToldOnceThePartIsGone)
{
    BeginWithBody("box");
    ASSERT_EQ(VEXDocumentServices::Remove(*Open(folder.File("box.VEXPart")), 1), S_OK);
    EXPECT_EQ(FindBody(), (Outcome{E_FAIL, kNoMainBody, ""}));
}

TEST_F(ElementTest, GivesABodyThatLivesOnWithTheCaseOnly)
{
    BeginWithBody("box");
    testCase._MechanicalPart = nullptr;
    testCase._PartLink = nullptr;
    testCase._RootProduct = nullptr;
    VEXListPtrVEXCell faces;
    ASSERT_EQ(testCase._Body->GetAllCells(faces, 2), S_OK);
    EXPECT_EQ(faces.Size(), 6);
    EXPECT_EQ(References(*testCase._Body.Get()), 1U);
}

}  // namespace
}  // namespace hlxtest
