// SPDX-License-Identifier: Apache-2.0
// The support of pressure, rotational body force, concentrated force, heat flux and film condition:
// all of them want faces, edges and vertices, whatever they are put on.
#include "library/WaysToSupports.h"
#include "library/loads/LoadKinds.h"

namespace hlxtest::statics {
namespace {

using WayParam = std::tuple<LoadKind, Way>;

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

INSTANTIATE_TEST_SUITE_P(Of, LoadPartTest,
                         testing::Combine(testing::ValuesIn(kAllKinds),
                                          testing::ValuesIn(waysToThePart)),
                         nameOfWay);

// --- Cells --------------------------------------------------------------------------------------

class LoadCellsTest : public LoadWayTest
{};

TEST_P(LoadCellsTest, FailsWithoutAWordOfItsOwnAndKeepsTheLoad)
{
    ExpectExit(kind, {"", way.faults, {E_FAIL, way.out, ""}, kind.ready, kind.AmplitudeCount()});
}

INSTANTIATE_TEST_SUITE_P(Of, LoadCellsTest,
                         testing::Combine(testing::ValuesIn(kAllKinds),
                                          testing::ValuesIn(waysToCells)),
                         nameOfWay);

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
    nameOfWay);

class LoadAddedSupportTest : public LoadWayTest
{};

TEST_P(LoadAddedSupportTest, IsToldWhenItFailsAndKeepsTheLoad)
{
    std::string faults = way.faults;
    Replace(faults, "TYPE", kind.type);
    const Outcome outcome{E_FAIL, kind.notSupported.out, kind.notSupported.err};
    const LoadExit exit{"", faults, outcome, kind.placed, kind.AmplitudeCount()};
    ExpectExit(kind, exit);
    if (!outcome.out.empty()) {
        ExpectFlushed(kind, exit);
    }
}

INSTANTIATE_TEST_SUITE_P(Of, LoadAddedSupportTest,
                         testing::Combine(testing::ValuesIn(kAllKinds),
                                          testing::ValuesIn(waysToAddSupport)),
                         nameOfWay);

INSTANTIATE_TEST_SUITE_P(OfNoPart, LoadAddedSupportTest,
                         testing::Combine(testing::ValuesIn(kDecodingKinds),
                                          testing::Values(Way{
                                              "", "cast:VEXPart->VEXISpecObject=E_NOINTERFACE"})),
                         nameOfWay);

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
