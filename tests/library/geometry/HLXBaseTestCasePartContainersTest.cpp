// SPDX-License-Identifier: Apache-2.0
// The containers of the part's document: all of them, and that of B-rep accesses.
#include "library/geometry/GeometryFixture.h"

namespace hlxtest {
namespace {

class PartContainersTest : public WatchedGeometryTest
{
protected:
    Outcome Find(const char* faults = "")
    {
        return RunWith(faults, [&] { return testCase.InitializeContainerOfPartDocument(); });
    }

    Outcome FindBReps(const char* faults = "")
    {
        return RunWith(faults, [&] { return testCase.GetBRepContainer(container); });
    }

    /// Forgets the containers and what the platform gave of the document along with a failure.
    void LetGoOfContainers()
    {
        testCase._PartDocContainer = nullptr;
        LetGoOfDocument(folder.File("box.VEXPart"));
    }

    VEXIContainer* container = nullptr;
};

// --- InitializeContainerOfPartDocument ----------------------------------------------------------

TEST_F(PartContainersTest, AreThoseOfThePartDocument)
{
    BeginWithProduct("box");
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    ASSERT_NE(testCase._PartDocContainer, nullptr);
    EXPECT_TRUE(testCase._PartDocContainer->IsEqual(Open(folder.File("box.VEXPart"))));
    EXPECT_EQ(testCase._MechanicalPart, nullptr);
    EXPECT_EQ(testCase._Body, nullptr);
}

TEST_F(PartContainersTest, AreThoseOfTheChosenPart)
{
    BeginWith(SeveralPartsSpecimen(folder));
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    testCase._PartIndex = 3;
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    EXPECT_TRUE(testCase._PartDocContainer->IsEqual(Open(folder.File("torus.VEXPart"))));
}

TEST_F(PartContainersTest, NeedARootProduct)
{
    EXPECT_EQ(Find(), (Outcome{E_FAIL, kNoNavigation, ""}));
    EXPECT_EQ(testCase._PartDocContainer, nullptr);
}

TEST_F(PartContainersTest, AreKeptWhenThePartIsNotFoundAgain)
{
    BeginWithProduct("box");
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    const VEXIContainerOfDocument* const former = testCase._PartDocContainer;
    EXPECT_EQ(Find("VEXILinkableObject::GetDocument=null"), (Outcome{E_FAIL, kNoPartDocument, ""}));
    EXPECT_EQ(Find("VEXIDescendants::GetAllChildren=empty"), (Outcome{E_FAIL, kNoPart, ""}));
    EXPECT_EQ(testCase._PartDocContainer, former);
}

class PartContainersExitTest : public PartContainersTest,
                               public testing::WithParamInterface<GeometryExit>
{};

TEST_P(PartContainersExitTest, AnswerTheResultOfTheQuery)
{
    BeginWithProduct("box");
    EXPECT_EQ(Find(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    LetGoOfContainers();
}

INSTANTIATE_TEST_SUITE_P(
    Of, PartContainersExitTest,
    testing::Values(
        GeometryExit{"NoPart", "VEXIDescendants::GetAllChildren=empty", E_FAIL, kNoPart},
        GeometryExit{"NoInterface", "cast:VEXPartDocument->VEXIContainerOfDocument=E_NOINTERFACE",
                     E_NOINTERFACE, kNoDocumentContainers},
        GeometryExit{"FailingQuery", "cast:VEXPartDocument->VEXIContainerOfDocument=E_ACCESSDENIED",
                     E_ACCESSDENIED, kNoDocumentContainers},
        GeometryExit{"FailingQueryThoughGiven",
                     "cast:VEXPartDocument->VEXIContainerOfDocument=E_UNEXPECTED,keep",
                     E_UNEXPECTED, kNoDocumentContainers},
        GeometryExit{"PositiveQuery", "cast:VEXPartDocument->VEXIContainerOfDocument=S_FALSE,keep",
                     S_FALSE, ""},
        GeometryExit{"EmptyQuery", "cast:VEXPartDocument->VEXIContainerOfDocument=null", S_OK, ""}),
    NameOfExit);

TEST_F(PartContainersTest, AreForgottenAndReleasedWhenTheyAreNotFoundAgain)
{
    BeginWithProduct("box");
    for (const char* const way : {"E_NOINTERFACE", "null"}) {
        ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
        ASSERT_NE(testCase._PartDocContainer, nullptr);
        Find((std::string("cast:VEXPartDocument->VEXIContainerOfDocument=") + way).c_str());
        EXPECT_EQ(testCase._PartDocContainer, nullptr) << way;
    }
}

// --- GetBRepContainer ---------------------------------------------------------------------------

TEST_F(PartContainersTest, ThatOfBRepAccessesIsHandedToTheCaller)
{
    BeginWithProduct("box");
    EXPECT_EQ(FindBReps(), (Outcome{S_OK, "", ""}));
    ASSERT_NE(container, nullptr);
    EXPECT_STREQ(container->IsA(), "VEXBRepContainer");
    ASSERT_NE(testCase._PartDocContainer, nullptr);
    VEXIContainer* same = nullptr;
    ASSERT_EQ(testCase._PartDocContainer->GetBRepContainer(same), S_OK);
    EXPECT_TRUE(same->IsEqual(container));
    EXPECT_EQ(same->Release(), 1U);
    EXPECT_EQ(container->Release(), 0U);
    EXPECT_EQ(testCase._MechanicalPart, nullptr);
}

TEST_F(PartContainersTest, ThatOfBRepAccessesNeedsARootProduct)
{
    EXPECT_EQ(FindBReps(), (Outcome{E_FAIL, kNoNavigation + kNoBRepContainer, ""}));
    EXPECT_EQ(container, nullptr);
    EXPECT_EQ(testCase._PartDocContainer, nullptr);
}

class BRepContainerExitTest : public PartContainersTest,
                              public testing::WithParamInterface<GeometryExit>
{};

TEST_P(BRepContainerExitTest, FailsWithItsMessageLast)
{
    BeginWithProduct("box");
    EXPECT_EQ(FindBReps(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    if (container != nullptr) {
        LetGo(*container);
    }
    LetGoOfContainers();
}

INSTANTIATE_TEST_SUITE_P(
    Of, BRepContainerExitTest,
    testing::Values(
        GeometryExit{"NoPart", "VEXIDescendants::GetAllChildren=empty", E_FAIL,
                     kNoPart + kNoBRepContainer},
        GeometryExit{"NoPartDocument", "VEXILinkableObject::GetDocument=null", E_FAIL,
                     kNoPartDocument + kNoBRepContainer},
        GeometryExit{"NoInterface", "cast:VEXPartDocument->VEXIContainerOfDocument=E_NOINTERFACE",
                     E_NOINTERFACE, kNoDocumentContainers + kNoBRepContainer},
        GeometryExit{"FailingQuery", "cast:VEXPartDocument->VEXIContainerOfDocument=E_ACCESSDENIED",
                     E_ACCESSDENIED, kNoDocumentContainers + kNoBRepContainer},
        GeometryExit{"FailingQueryThoughGiven",
                     "cast:VEXPartDocument->VEXIContainerOfDocument=E_UNEXPECTED,keep",
                     E_UNEXPECTED, kNoDocumentContainers + kNoBRepContainer},
        GeometryExit{"FailingContainer", "VEXIContainerOfDocument::GetBRepContainer=E_ACCESSDENIED",
                     E_ACCESSDENIED, kNoBRepContainer},
        GeometryExit{"FailingContainerThoughGiven",
                     "VEXIContainerOfDocument::GetBRepContainer=E_UNEXPECTED,keep", E_UNEXPECTED,
                     kNoBRepContainer},
        GeometryExit{"PositiveContainer", "VEXIContainerOfDocument::GetBRepContainer=S_FALSE,keep",
                     S_FALSE, ""},
        GeometryExit{"EmptyContainer", "VEXIContainerOfDocument::GetBRepContainer=null", S_OK, ""},
        GeometryExit{"EmptyQuery", "cast:VEXPartDocument->VEXIContainerOfDocument=null", S_OK, ""}),
    NameOfExit);

TEST_F(PartContainersTest, ThatOfBRepAccessesIsNotTakenFromAFormerPart)
{
    BeginWithProduct("box");
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    testCase._RootProduct = nullptr;
    testCase._PartLink = nullptr;
    EXPECT_EQ(FindBReps(), (Outcome{E_FAIL, kNoNavigation + kNoBRepContainer, ""}));
    EXPECT_EQ(container, nullptr);
    EXPECT_NE(testCase._PartDocContainer, nullptr);
}

}  // namespace
}  // namespace hlxtest
