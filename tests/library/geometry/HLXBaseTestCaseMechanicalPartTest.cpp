// SPDX-License-Identifier: Apache-2.0
// The mechanical part: its messages add up, nothing on the way ends the search.
#include "library/geometry/GeometryFixture.h"

namespace hlxtest {
namespace {

class MechanicalPartTest : public WatchedGeometryTest
{
protected:
    Outcome Find(const char* faults = "")
    {
        return RunWith(faults, [&] { return testCase.InitializeMechanicalPart(); });
    }

    /// Forgets the containers and what the platform gave of the document along with a failure.
    void LetGoOfContainers()
    {
        testCase._PartDocContainer = nullptr;
        LetGoOfDocument(folder.File("box.VEXPart"));
    }
};

TEST_F(MechanicalPartTest, IsTheFeatureOfThePart)
{
    BeginWithProduct("box");
    EXPECT_EQ(Find(), (Outcome{S_OK, "", ""}));
    ASSERT_NE(testCase._MechanicalPart, nullptr);
    EXPECT_EQ(testCase._MechanicalPart->GetType(), "VEXPart");
    EXPECT_EQ(AliasOf(testCase._MechanicalPart), "box");
    ASSERT_NE(testCase._PartDocContainer, nullptr);
    EXPECT_TRUE(testCase._PartDocContainer->IsEqual(Open(folder.File("box.VEXPart"))));
    EXPECT_EQ(testCase._Body, nullptr);
}

TEST_F(MechanicalPartTest, IsThatOfTheChosenPart)
{
    BeginWith(SeveralPartsSpecimen(folder));
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    testCase._PartIndex = 2;
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(AliasOf(testCase._MechanicalPart), "cylinder");
}

class MechanicalPartExitTest : public MechanicalPartTest,
                               public testing::WithParamInterface<GeometryExit>
{};

TEST_P(MechanicalPartExitTest, TellsEachFailureOnTheWay)
{
    BeginWithProduct("box");
    EXPECT_EQ(Find(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(testCase._MechanicalPart, nullptr);
    LetGoOfContainers();
}

INSTANTIATE_TEST_SUITE_P(
    Of, MechanicalPartExitTest,
    testing::Values(
        GeometryExit{"NoChildren", "VEXIProduct::GetChildren=null", E_FAIL,
                     kNoChildren + kNoNavigation + kNoMechanicalPartAtAll},
        GeometryExit{"NoPart", "VEXIDescendants::GetAllChildren=empty", E_FAIL,
                     kNoPart + kNoMechanicalPartAtAll},
        GeometryExit{"NoPartDocument", "VEXILinkableObject::GetDocument=null", E_FAIL,
                     kNoPartDocument + kNoMechanicalPartAtAll},
        GeometryExit{"NoInterface", "cast:VEXPartDocument->VEXIContainerOfDocument=E_NOINTERFACE",
                     E_FAIL, kNoDocumentContainers + kNoMechanicalPartAtAll},
        GeometryExit{"FailingQuery", "cast:VEXPartDocument->VEXIContainerOfDocument=E_ACCESSDENIED",
                     E_FAIL, kNoDocumentContainers + kNoMechanicalPartAtAll},
        GeometryExit{"EmptyQuery", "cast:VEXPartDocument->VEXIContainerOfDocument=null", E_FAIL,
                     kNoMechanicalPartAtAll},
        GeometryExit{"FailingFeatures", "VEXIContainerOfDocument::GetSpecContainer=E_ACCESSDENIED",
                     E_FAIL, kNoMechanicalPartAtAll},
        GeometryExit{"NoFeatures", "VEXIContainerOfDocument::GetSpecContainer=null", E_FAIL,
                     kNoMechanicalPartAtAll},
        GeometryExit{"NoPartContainer", "cast:VEXPrtContainer->VEXIPrtContainer=E_NOINTERFACE",
                     E_FAIL, kNoPrtContainer + kNoMechanicalPart},
        GeometryExit{"EmptyPartContainer", "cast:VEXPrtContainer->VEXIPrtContainer=null", E_FAIL,
                     kNoPrtContainer + kNoMechanicalPart},
        GeometryExit{"NoMechanicalPart", "VEXIPrtContainer::GetMechanicalPart=null", E_FAIL,
                     kNoMechanicalPart}),
    NameOfExit);

TEST_F(MechanicalPartTest, NeedsARootProduct)
{
    EXPECT_EQ(Find(), (Outcome{E_FAIL, kNoNavigation + kNoMechanicalPartAtAll, ""}));
    EXPECT_EQ(testCase._MechanicalPart, nullptr);
    EXPECT_EQ(testCase._PartDocContainer, nullptr);
}

TEST_F(MechanicalPartTest, IsTakenOfFeaturesThatWereGivenAlongWithAFailure)
{
    BeginWithProduct("box");
    EXPECT_EQ(Find("VEXIContainerOfDocument::GetSpecContainer=E_UNEXPECTED,keep"),
              (Outcome{E_FAIL, kNoSpecContainer, ""}));
    EXPECT_EQ(AliasOf(testCase._MechanicalPart), "box");
}

TEST_F(MechanicalPartTest, IsFoundWithAPositiveResult)
{
    BeginWithProduct("box");
    for (const char* const faults : {"cast:VEXPartDocument->VEXIContainerOfDocument=S_FALSE,keep",
                                     "VEXIContainerOfDocument::GetSpecContainer=S_FALSE,keep"}) {
        testCase._MechanicalPart = nullptr;
        const Outcome outcome = Find(faults);
        EXPECT_GE(outcome.result, 0) << faults;
        EXPECT_EQ(outcome.out + outcome.err, "") << faults;
        EXPECT_NE(testCase._MechanicalPart, nullptr) << faults;
    }
}

// --- One that is there already ------------------------------------------------------------------

class FormerMechanicalPartTest : public MechanicalPartTest,
                                 public testing::WithParamInterface<GeometryExit>
{};

TEST_P(FormerMechanicalPartTest, StaysAndOnlyTheLastMessageIsLeftOut)
{
    BeginWithProduct("box");
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    const VEXISpecObject_var former = testCase._MechanicalPart;
    EXPECT_EQ(Find(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_TRUE(testCase._MechanicalPart == former);
    LetGoOfContainers();
}

INSTANTIATE_TEST_SUITE_P(
    Of, FormerMechanicalPartTest,
    testing::Values(
        GeometryExit{"NoInterface", "cast:VEXPartDocument->VEXIContainerOfDocument=E_ACCESSDENIED",
                     E_FAIL, kNoDocumentContainers + kNoSpecContainer + kNoPrtContainer},
        GeometryExit{"NoFeatures", "VEXIContainerOfDocument::GetSpecContainer=E_ACCESSDENIED",
                     E_FAIL, kNoSpecContainer + kNoPrtContainer},
        GeometryExit{"NoPartContainer", "cast:VEXPrtContainer->VEXIPrtContainer=E_NOINTERFACE",
                     E_FAIL, kNoPrtContainer}),
    NameOfExit);

TEST_F(MechanicalPartTest, IsForgottenWhenThePartHasNone)
{
    BeginWithProduct("box");
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Find("VEXIPrtContainer::GetMechanicalPart=null"),
              (Outcome{E_FAIL, kNoMechanicalPart, ""}));
    EXPECT_EQ(testCase._MechanicalPart, nullptr);
}

TEST_F(MechanicalPartTest, OfTheFormerContainersIsFoundButThePartIsMissed)
{
    BeginWithProduct("box");
    ASSERT_EQ(Find(), (Outcome{S_OK, "", ""}));
    testCase._MechanicalPart = nullptr;
    EXPECT_EQ(Find("VEXIDescendants::GetAllChildren=empty"), (Outcome{E_FAIL, kNoPart, ""}));
    EXPECT_EQ(AliasOf(testCase._MechanicalPart), "box");
}

}  // namespace
}  // namespace hlxtest
