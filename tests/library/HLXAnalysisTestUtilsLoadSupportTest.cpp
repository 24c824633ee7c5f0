// SPDX-License-Identifier: Apache-2.0
// The support of pressure, rotational body force, concentrated force, heat flux and film condition:
// all of them want faces, edges and vertices, whatever they are put on.
#include "library/LoadKinds.h"

namespace hlxtest::statics {
namespace {

struct Way
{
    const char* name;
    const char* faults;
    const char* out = "";
};

using WayParam = std::tuple<LoadKind, Way>;

std::string NameOfWay(const testing::TestParamInfo<WayParam>& row)
{
    return std::string(std::get<0>(row.param).name) + std::get<1>(row.param).name;
}

const std::vector<LoadKind> kDecodingKinds{kPressure, kConcentratedForce, kHeatFlux,
                                           kFilmCondition};

class LoadWayTest : public LoadKindTest, public testing::WithParamInterface<WayParam>
{
protected:
    const LoadKind& kind = std::get<0>(GetParam());
    const Way& way = std::get<1>(GetParam());
};

// --- Product and part ---------------------------------------------------------------------------

class LoadPartTest : public LoadWayTest
{};

TEST_P(LoadPartTest, FailsWithoutAWordOfItsOwn)
{
    LoadExit exit{"", way.faults, {E_FAIL, way.out, ""}};
    if (!kind.asksPartFirst) {
        exit.text = kind.ready;
        exit.amplitudes = kind.AmplitudeCount();
    }
    ExpectExit(kind, exit);
}

INSTANTIATE_TEST_SUITE_P(
    Of, LoadPartTest,
    testing::Combine(
        testing::ValuesIn(kAllKinds),
        testing::Values(
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

// --- Cells --------------------------------------------------------------------------------------

class LoadCellsTest : public LoadWayTest
{};

TEST_P(LoadCellsTest, FailsWithoutAWordOfItsOwnAndKeepsTheLoad)
{
    ExpectExit(kind, {"", way.faults, {E_FAIL, way.out, ""}, kind.ready, kind.AmplitudeCount()});
}

INSTANTIATE_TEST_SUITE_P(
    Of, LoadCellsTest,
    testing::Combine(
        testing::ValuesIn(kAllKinds),
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
                        Way{"FailingVertices", "VEXBody::GetAllCells#3=E_ACCESSDENIED"},
                        Way{"SecondIsNoFace", "cast:VEXFaceCell->VEXFace#2=E_NOINTERFACE",
                            "Cannot get a VEXFace!\n"},
                        Way{"LastIsNoVertex", "cast:VEXVertexCell->VEXVertex#8=E_NOINTERFACE",
                            "Cannot get a VEXVertex!\n"})),
    NameOfWay);

// --- Geometry -----------------------------------------------------------------------------------

class LoadDecodedCellTest : public LoadWayTest
{};

TEST_P(LoadDecodedCellTest, FailsWithoutAWordAndKeepsTheLoad)
{
    ExpectExit(kind, {"", way.faults, {E_FAIL, "", ""}, kind.ready, kind.AmplitudeCount()});
}

INSTANTIATE_TEST_SUITE_P(
    Of, LoadDecodedCellTest,
    testing::Combine(
        testing::ValuesIn(kDecodingKinds),
        testing::Values(Way{"NoAccess", "VEXBRepDecode=null"},
                        Way{"NoContainer",
                            "VEXIContainerOfDocument::GetBRepContainer=E_ACCESSDENIED"},
                        Way{"EmptyContainer", "VEXIContainerOfDocument::GetBRepContainer=null"},
                        Way{"NoLink", "cast:VEXBRepAccess->VEXILinkableObject=E_NOINTERFACE"},
                        Way{"EmptyLink", "cast:VEXBRepAccess->VEXILinkableObject=null"})),
    NameOfWay);

class LoadAddedSupportTest : public LoadWayTest
{};

TEST_P(LoadAddedSupportTest, IsToldWhenItFailsAndKeepsTheLoad)
{
    std::string faults = way.faults;
    if (const auto place = faults.find('*'); place != faults.npos) {
        faults.replace(place, 1, kind.type);
    }
    const Outcome outcome{E_FAIL, kind.notSupported.out, kind.notSupported.err};
    const LoadExit exit{"", faults, outcome, kind.placed, kind.AmplitudeCount()};
    ExpectExit(kind, exit);
    if (!outcome.out.empty()) {
        ExpectFlushed(kind, exit);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Of, LoadAddedSupportTest,
    testing::Combine(
        testing::ValuesIn(kAllKinds),
        testing::Values(Way{"Fails", "VEXISamAnalysisSupport::AddSupport=E_FAIL"},
                        Way{"IsDenied", "VEXISamAnalysisSupport::AddSupport=E_ACCESSDENIED"},
                        Way{"HasNoInterface", "cast:*->VEXISamAnalysisSupport=E_NOINTERFACE"},
                        Way{"HasNoObject", "cast:*->VEXISamAnalysisSupport=null"})),
    NameOfWay);

INSTANTIATE_TEST_SUITE_P(OfNoPart, LoadAddedSupportTest,
                         testing::Combine(testing::ValuesIn(kDecodingKinds),
                                          testing::Values(Way{
                                              "", "cast:VEXPart->VEXISpecObject=E_NOINTERFACE"})),
                         NameOfWay);

class LoadSupportTest : public LoadKindTest, public testing::WithParamInterface<LoadKind>
{
protected:
    const LoadKind& kind = GetParam();
};

TEST_P(LoadSupportTest, OneAddedAlongWithAFailureIsAFailureAndStays)
{
    const Outcome outcome{E_FAIL, kind.notSupported.out, kind.notSupported.err};
    ExpectExit(kind, {"", "VEXISamAnalysisSupport::AddSupport=E_UNEXPECTED,keep", outcome,
                      kind.Supported(), kind.AmplitudeCount()});
}

TEST_P(LoadSupportTest, OneAddedWithAPositiveResultIsASuccess)
{
    ExpectExit(kind, {"",
                      "VEXISamAnalysisSupport::AddSupport=S_FALSE,keep",
                      {S_OK, kind.done, ""},
                      kind.Whole(),
                      kind.AmplitudeCount()});
}

TEST_P(LoadSupportTest, ResultsOfListingCellsAreNotLookedAt)
{
    ExpectExit(kind, {"",
                      "VEXBody::GetAllCells=E_UNEXPECTED,keep",
                      {S_OK, kind.done, ""},
                      kind.Whole(),
                      kind.AmplitudeCount()});
}

TEST_P(LoadSupportTest, NothingIsPutOnTheLoadThatTheHandleHeld)
{
    EXPECT_EQ(Create(kind.create).result, S_OK);
    const VEXISpecObject_var first = load;
    EXPECT_EQ(Create(kind.create).result, S_OK);
    EXPECT_EQ(SupportsOf(first).size(), 1U);
    EXPECT_EQ(SupportsOf(load).size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Of, LoadSupportTest, testing::ValuesIn(kAllKinds),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace hlxtest::statics
