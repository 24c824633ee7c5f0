// SPDX-License-Identifier: Apache-2.0
// Which platform calls lead from the root product to the part's document, containers, mechanical
// part and body, in which order, and what is held afterwards.
#include "library/geometry/GeometryFixture.h"

namespace hlxtest {
namespace {

using Calls = std::vector<std::string>;

Calls Together(Calls head, const Calls& tail)
{
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

const Calls kToThePartDocument{
    "VEXIProduct::GetChildren(\"VEXIProduct\")",
    "cast:VEXProductNode->VEXILinkableObject(&)",
    "cast:VEXProductNode->VEXIDescendants(&)",
    "VEXIDescendants::GetAllChildren(\"VEXILinkableObject\", &)",
    "cast:VEXPart->VEXILinkableObject(&)",
    "VEXILinkableObject::GetDocument()",
};
const Calls kToItsContainers =
    Together(kToThePartDocument, {"cast:VEXPartDocument->VEXIContainerOfDocument(&)"});
const Calls kToTheMechanicalPart =
    Together(kToItsContainers, {
                                   "VEXIContainerOfDocument::GetSpecContainer(&)",
                                   "cast:VEXPrtContainer->VEXIPrtContainer(&)",
                                   "VEXIPrtContainer::GetMechanicalPart()",
                               });
const Calls kFromThereToTheElement{
    "cast:VEXPart->VEXIPartRequest(&)",
    "VEXIPartRequest::GetMainBody(\"\", &)",
    "cast:VEXMechanicalTool->VEXIMechanicalTool(&)",
    "VEXIMechanicalTool::GetLastShapedObject()",
    "cast:VEXImportedShape->VEXIGeometricalElement(&)",
};

class PartWayTest : public GeometryTest
{
protected:
    PartWayTest() { BeginWithProduct("box"); }

    VEXDocument* part = nullptr;
    VEXIGeometricalElement_var element;
    VEXIContainer* container = nullptr;
};

TEST_F(PartWayTest, LeadsToThePartDocument)
{
    EXPECT_EQ(CallsOf([&] { testCase.GetPartDocument(part); }), kToThePartDocument);
}

TEST_F(PartWayTest, EndsBeforeTheDescendantsWithoutARootProduct)
{
    ASSERT_EQ(testCase.GetPartDocument(part), S_OK);
    testCase._RootProduct = nullptr;
    EXPECT_EQ(CallsOf([&] { testCase.GetPartDocument(part); },
                      {"VEXIProduct", "VEXIDescendants", "VEXILinkableObject"}),
              Calls{});
}

TEST_F(PartWayTest, LeadsToTheContainersOfThePartDocument)
{
    EXPECT_EQ(CallsOf([&] { testCase.InitializeContainerOfPartDocument(); }), kToItsContainers);
}

TEST_F(PartWayTest, LeadsToTheMechanicalPart)
{
    EXPECT_EQ(CallsOf([&] { testCase.InitializeMechanicalPart(); }), kToTheMechanicalPart);
}

TEST_F(PartWayTest, LeadsToTheContainerOfBRepAccesses)
{
    EXPECT_EQ(CallsOf([&] { testCase.GetBRepContainer(container); }),
              Together(kToItsContainers, {"VEXIContainerOfDocument::GetBRepContainer(&)"}));
    ASSERT_NE(container, nullptr);
    container->Release();
}

TEST_F(PartWayTest, LeadsToTheElementByTheMechanicalPart)
{
    EXPECT_EQ(CallsOf([&] { testCase.GetGeometricalElement(element); }),
              Together(kToTheMechanicalPart, kFromThereToTheElement));
}

TEST_F(PartWayTest, LeadsToTheElementFromAMechanicalPartThatIsKnown)
{
    ASSERT_EQ(testCase.InitializeMechanicalPart(), S_OK);
    EXPECT_EQ(CallsOf([&] { testCase.GetGeometricalElement(element); }), kFromThereToTheElement);
}

TEST_F(PartWayTest, LeadsToTheBodyByTheElement)
{
    EXPECT_EQ(CallsOf([&] { testCase.InitializeBody(); }),
              Together(Together(kToTheMechanicalPart, kFromThereToTheElement),
                       {"VEXIGeometricalElement::GetBody()"}));
}

TEST_F(PartWayTest, LeadsToTheBodyAnewEachTime)
{
    ASSERT_EQ(testCase.InitializeBody(), S_OK);
    EXPECT_EQ(CallsOf([&] { testCase.InitializeBody(); }),
              Together(kFromThereToTheElement, {"VEXIGeometricalElement::GetBody()"}));
}

// --- What is held -------------------------------------------------------------------------------

TEST_F(PartWayTest, HoldsThePartLinkOnly)
{
    testCase._RootProduct = nullptr;
    const Recording recording;
    ASSERT_EQ(testCase.InitializeRootProduct(Manager()), S_OK);
    ASSERT_EQ(testCase.GetPartDocument(part), S_OK);
    EXPECT_EQ(vex::probe::HeldObjects(), (Held{{"VEXProductNode", 2}}));
    EXPECT_EQ(References(*testCase._PartLink.Get()), 1U);
}

TEST_F(PartWayTest, HoldsTheContainersOnceHoweverOftenTheyAreFound)
{
    const Recording recording;
    ASSERT_EQ(testCase.InitializeContainerOfPartDocument(), S_OK);
    ASSERT_NE(testCase._PartDocContainer, nullptr);
    EXPECT_EQ(References(*testCase._PartDocContainer), 2U);  // one is the session's
    ASSERT_EQ(testCase.InitializeContainerOfPartDocument(), S_OK);
    ASSERT_EQ(testCase.InitializeMechanicalPart(), S_OK);
    ASSERT_EQ(testCase.GetBRepContainer(container), S_OK);
    EXPECT_EQ(References(*testCase._PartDocContainer), 2U);
    EXPECT_EQ(References(*container), 1U);
    container->Release();
    EXPECT_EQ(vex::probe::HeldObjects(),
              (Held{{"VEXPart", 1}, {"VEXPartDocument", 1}, {"VEXProductNode", 1}}));
}

TEST_F(PartWayTest, HoldsNothingOfTheElementButItsHandle)
{
    ASSERT_EQ(testCase.InitializeMechanicalPart(), S_OK);
    const Recording recording;
    ASSERT_EQ(testCase.GetGeometricalElement(element), S_OK);
    EXPECT_EQ(vex::probe::HeldObjects(), (Held{{"VEXImportedShape", 1}}));
    EXPECT_EQ(References(*element.Get()), 1U);
}

TEST_F(PartWayTest, HoldsTheBodyOnceHoweverOftenItIsFound)
{
    ASSERT_EQ(testCase.InitializeMechanicalPart(), S_OK);
    const Recording recording;
    ASSERT_EQ(testCase.InitializeBody(), S_OK);
    ASSERT_EQ(testCase.InitializeBody(), S_OK);
    EXPECT_EQ(vex::probe::HeldObjects(), (Held{{"VEXBody", 1}}));
    EXPECT_EQ(References(*testCase._Body.Get()), 1U);
}

}  // namespace
}  // namespace hlxtest
