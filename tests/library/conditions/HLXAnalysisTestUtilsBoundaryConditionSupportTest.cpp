// SPDX-License-Identifier: Apache-2.0
// The support of displacement, velocity and clamp: all of them want faces, edges and vertices of
// the part, and are put on its first face.
#include "library/conditions/BoundaryConditionKinds.h"

namespace hlxtest::statics {
namespace {

using WayParam = std::tuple<ConditionKind, Way>;

class ConditionWayTest : public BoundaryConditionTest, public testing::WithParamInterface<WayParam>
{
protected:
    void ExpectFailure(const char* out)
    {
        ExpectExit(kind, {"", way.faults, {E_FAIL, out, ""}, kind.ready});
    }

    /// Told by the operation itself, which does not flush it.
    void ExpectToldFailure(const char* out)
    {
        ExpectFailure(out);
        EXPECT_EQ(FlushedBy(kind, way.faults), "");
    }

    const ConditionKind& kind = std::get<0>(GetParam());
    const Way& way = std::get<1>(GetParam());
};

// --- Product, part, cells -----------------------------------------------------------------------

class ConditionPartTest : public ConditionWayTest
{};

TEST_P(ConditionPartTest, FailsWithoutAWordOfItsOwnAndKeepsTheCondition)
{
    ExpectFailure(way.out);
}

INSTANTIATE_TEST_SUITE_P(
    Of, ConditionPartTest,
    testing::Combine(testing::ValuesIn(kAllConditions),
                     testing::ValuesIn(
                         With(waysToThePart,
                              {{"NoAccess", "cast:VEXAnalysisDocument->VEXISamAccess=E_NOINTERFACE",
                                "**********ERROR in getting the FEM\n"}}))),
    nameOfWay);

INSTANTIATE_TEST_SUITE_P(
    OfCells, ConditionPartTest,
    testing::Combine(testing::ValuesIn(kAllConditions),
                     testing::ValuesIn(With(waysToCells,
                                            {{"FailingEdges",
                                              "VEXBody::GetAllCells#2=E_ACCESSDENIED"}}))),
    nameOfWay);

// --- Cells --------------------------------------------------------------------------------------

class ConditionDecodedCellTest : public ConditionWayTest
{};

TEST_P(ConditionDecodedCellTest, IsToldWhenItIsMissingAndKeepsTheCondition)
{
    ExpectToldFailure(kind.notDecoded);
}

INSTANTIATE_TEST_SUITE_P(
    Of, ConditionDecodedCellTest,
    testing::Combine(
        testing::ValuesIn(kAllConditions),
        testing::Values(Way{"NoFace", "VEXBRepDecode#1=null"}, Way{"NoCell", "VEXBRepDecode=null"},
                        Way{"NoContainer",
                            "VEXIContainerOfDocument::GetBRepContainer=E_ACCESSDENIED"},
                        Way{"EmptyContainer", "VEXIContainerOfDocument::GetBRepContainer=null"})),
    nameOfWay);

class ConditionLinkToFaceTest : public ConditionWayTest
{};

TEST_P(ConditionLinkToFaceTest, IsToldWhenItIsMissingAndKeepsTheCondition)
{
    ExpectToldFailure(kNoLinkToFace);
}

INSTANTIATE_TEST_SUITE_P(
    Of, ConditionLinkToFaceTest,
    testing::Combine(
        testing::ValuesIn(kAllConditions),
        testing::Values(Way{"None", "cast:VEXBRepAccess->VEXILinkableObject=E_NOINTERFACE"},
                        Way{"Denied", "cast:VEXBRepAccess->VEXILinkableObject=E_ACCESSDENIED"},
                        Way{"Null", "cast:VEXBRepAccess->VEXILinkableObject=null"})),
    nameOfWay);

// --- Support ------------------------------------------------------------------------------------

class ConditionAddedSupportTest : public ConditionWayTest
{};

TEST_P(ConditionAddedSupportTest, IsToldWhenItFailsAndKeepsTheCondition)
{
    ExpectToldFailure(kind.notSupported);
}

INSTANTIATE_TEST_SUITE_P(
    Of, ConditionAddedSupportTest,
    testing::Combine(testing::ValuesIn(kAllConditions),
                     testing::ValuesIn(With(waysToAddSupport,
                                            {{"HasNoPart",
                                              "cast:VEXPart->VEXISpecObject=E_NOINTERFACE"}}))),
    nameOfWay);

class ConditionSupportTest : public BoundaryConditionTest,
                             public testing::WithParamInterface<ConditionKind>
{
protected:
    /// How many cells of the part an access was made to.
    int AccessCount()
    {
        const VEXIContainerOfDocument_var part =
            VEXShare<VEXBaseUnknown>(Open(folder.File("box.VEXPart")));
        VEXIContainer* accesses = nullptr;
        EXPECT_EQ(part->GetBRepContainer(accesses), S_OK);
        return VEXAdopt(accesses)->GetMemberCount("VEXIBRepAccess");
    }

    const ConditionKind& kind = GetParam();
};

TEST_P(ConditionSupportTest, OneAddedAlongWithAFailureIsAFailureAndStays)
{
    ExpectExit(kind, {"",
                      "VEXISamAnalysisSupport::AddSupport=E_UNEXPECTED,keep",
                      {E_FAIL, kind.notSupported, ""},
                      kind.Whole()});
}

TEST_P(ConditionSupportTest, OneAddedWithAPositiveResultIsASuccess)
{
    ExpectExit(
        kind,
        {"", "VEXISamAnalysisSupport::AddSupport=S_FALSE,keep", {S_OK, "", ""}, kind.Whole()});
}

TEST_P(ConditionSupportTest, ResultsOfListingCellsAreNotLookedAt)
{
    ExpectExit(kind, {"", "VEXBody::GetAllCells=E_UNEXPECTED,keep", {S_OK, "", ""}, kind.Whole()});
}

TEST_P(ConditionSupportTest, OnlyTheClampMakesAnAccessToAnEdge)
{
    EXPECT_EQ(AccessCount(), 0);
    EXPECT_EQ(Create(kind.create).result, S_OK);
    const int cells = kind.type == kClamp.type ? 2 : 1;
    EXPECT_EQ(AccessCount(), cells);
    EXPECT_EQ(Create(kind.create).result, S_OK);
    EXPECT_EQ(AccessCount(), cells);
}

INSTANTIATE_TEST_SUITE_P(Of, ConditionSupportTest, testing::ValuesIn(kAllConditions),
                         NameOfCondition);

}  // namespace
}  // namespace hlxtest::statics
