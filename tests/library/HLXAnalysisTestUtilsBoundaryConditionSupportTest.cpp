// SPDX-License-Identifier: Apache-2.0
// The support of displacement, velocity and clamp: all of them want faces, edges and vertices of
// the part, and are put on its first face.
#include "library/BoundaryConditionKinds.h"

namespace hlxtest::statics {
namespace {

struct Way
{
    const char* name;
    const char* faults;
    const char* out = "";
};

using WayParam = std::tuple<ConditionKind, Way>;

std::string NameOfWay(const testing::TestParamInfo<WayParam>& row)
{
    return std::string(std::get<0>(row.param).name) + std::get<1>(row.param).name;
}

class ConditionWayTest : public BoundaryConditionTest, public testing::WithParamInterface<WayParam>
{
protected:
    void ExpectFailure(const char* out)
    {
        ExpectExit(kind, {"", way.faults, {E_FAIL, out, ""}, kind.ready});
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
    testing::Combine(
        testing::ValuesIn(kAllConditions),
        testing::Values(
            Way{"NoAccess", "cast:VEXAnalysisDocument->VEXISamAccess=E_NOINTERFACE",
                "**********ERROR in getting the FEM\n"},
            Way{"NoLinks", "VEXISamDocumentManager::GetLinkedDocuments=empty",
                "VEXAnalysis Document has no linked geometry!\n"},
            Way{"NoModels", "VEXISamAnalysisManager::GetAllAnalysisModels=empty",
                "***ERROR No analysis models found.\n"},
            Way{"NoProduct", "cast:VEXProductNode->VEXIProduct#1=E_NOINTERFACE"},
            Way{"NoPart", "VEXIDescendants::GetAllChildren=empty", "Could not get the VEXPart\n"},
            Way{"NoContainers", "cast:VEXPartDocument->VEXIContainerOfDocument=E_NOINTERFACE",
                "Cannot find interface VEXIContainerOfDocument on VEXPart\n"},
            Way{"NoPartContainer", "cast:VEXPrtContainer->VEXIPrtContainer=E_NOINTERFACE",
                "Cannot get interface VEXIPrtContainer!\n"},
            Way{"NoMechanicalPart", "VEXIPrtContainer::GetMechanicalPart=null",
                "Cannot get MechanicalPart feature\n"})),
    NameOfWay);

INSTANTIATE_TEST_SUITE_P(
    OfCells, ConditionPartTest,
    testing::Combine(
        testing::ValuesIn(kAllConditions),
        testing::Values(Way{"NoRequest", "cast:VEXPart->VEXIPartRequest#1=E_NOINTERFACE",
                            "Cannot get VEXIPartRequest for MechanicalPart feature\n"},
                        Way{"NoMainBody", "VEXIPartRequest::GetMainBody#1=null",
                            "Cannot retrieve MainBody\n"},
                        Way{"NoResults", "VEXIBodyRequest::GetResults=empty"},
                        Way{"NoBody", "VEXIGeometricalElement::GetBody=null"},
                        Way{"NoFaces", "VEXBody::GetAllCells#1=empty"},
                        Way{"NoEdges", "VEXBody::GetAllCells#2=empty"},
                        Way{"NoVertices", "VEXBody::GetAllCells#3=empty"},
                        Way{"FailingFaces", "VEXBody::GetAllCells#1=E_ACCESSDENIED"},
                        Way{"FailingEdges", "VEXBody::GetAllCells#2=E_ACCESSDENIED"},
                        Way{"FailingVertices", "VEXBody::GetAllCells#3=E_ACCESSDENIED"},
                        Way{"SecondIsNoFace", "cast:VEXFaceCell->VEXFace#2=E_NOINTERFACE",
                            "Cannot get a VEXFace!\n"},
                        Way{"LastIsNoVertex", "cast:VEXVertexCell->VEXVertex#8=E_NOINTERFACE",
                            "Cannot get a VEXVertex!\n"})),
    NameOfWay);

// --- Cells --------------------------------------------------------------------------------------

class ConditionDecodedCellTest : public ConditionWayTest
{};

TEST_P(ConditionDecodedCellTest, IsToldWhenItIsMissingAndKeepsTheCondition)
{
    ExpectFailure(kind.notDecoded);
    EXPECT_EQ(FlushedBy(kind, way.faults), "");
}

INSTANTIATE_TEST_SUITE_P(
    Of, ConditionDecodedCellTest,
    testing::Combine(
        testing::ValuesIn(kAllConditions),
        testing::Values(Way{"NoFace", "VEXBRepDecode#1=null"}, Way{"NoCell", "VEXBRepDecode=null"},
                        Way{"NoContainer",
                            "VEXIContainerOfDocument::GetBRepContainer=E_ACCESSDENIED"},
                        Way{"EmptyContainer", "VEXIContainerOfDocument::GetBRepContainer=null"})),
    NameOfWay);

class ConditionLinkToFaceTest : public ConditionWayTest
{};

TEST_P(ConditionLinkToFaceTest, IsToldWhenItIsMissingAndKeepsTheCondition)
{
    ExpectFailure(kNoLinkToFace);
    EXPECT_EQ(FlushedBy(kind, way.faults), "");
}

INSTANTIATE_TEST_SUITE_P(
    Of, ConditionLinkToFaceTest,
    testing::Combine(
        testing::ValuesIn(kAllConditions),
        testing::Values(Way{"None", "cast:VEXBRepAccess->VEXILinkableObject=E_NOINTERFACE"},
                        Way{"Denied", "cast:VEXBRepAccess->VEXILinkableObject=E_ACCESSDENIED"},
                        Way{"Null", "cast:VEXBRepAccess->VEXILinkableObject=null"})),
    NameOfWay);

// --- Support ------------------------------------------------------------------------------------

class ConditionAddedSupportTest : public ConditionWayTest
{};

TEST_P(ConditionAddedSupportTest, IsToldWhenItFailsAndKeepsTheCondition)
{
    ExpectFailure(kind.notSupported);
    EXPECT_EQ(FlushedBy(kind, way.faults), "");
}

INSTANTIATE_TEST_SUITE_P(
    Of, ConditionAddedSupportTest,
    testing::Combine(
        testing::ValuesIn(kAllConditions),
        testing::Values(Way{"Fails", "VEXISamAnalysisSupport::AddSupport=E_FAIL"},
                        Way{"IsDenied", "VEXISamAnalysisSupport::AddSupport=E_ACCESSDENIED"},
                        Way{"HasNoInterface", "cast:TYPE->VEXISamAnalysisSupport=E_NOINTERFACE"},
                        Way{"HasNoObject", "cast:TYPE->VEXISamAnalysisSupport=null"},
                        Way{"HasNoPart", "cast:VEXPart->VEXISpecObject=E_NOINTERFACE"})),
    NameOfWay);

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
