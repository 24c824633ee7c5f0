// SPDX-License-Identifier: Apache-2.0
// Cells by iteration on a platform that fails: what is told, what the list has, which calls are
// made.
#include "library/geometry/CellsByIteration.h"

namespace hlxtest {

namespace {

using Calls = std::vector<std::string>;

const Calls kToTheFirstFace{
    "VEXBody::GetDomain(1, 0)",
    "VEXDomain::GetCell(1, 0)",
    "VEXCell::CreateBoundedCellsIterator()",
    "VEXBoundedCellsIterator::Initialize()",
    "VEXBoundedCellsIterator::Next()",
};
const Calls kToTheNextLower{
    "VEXCell::CreateBoundedCellsIterator()",
    "VEXBoundedCellsIterator::Initialize()",
    "VEXBoundedCellsIterator::Next()",
};

Calls Together(const std::vector<Calls>& parts)
{
    Calls all;
    for (const Calls& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

Calls Further(std::size_t count)
{
    return Calls(count, "VEXBoundedCellsIterator::Next()");
}

// --- Order of calls -----------------------------------------------------------------------------

struct WayRow
{
    const char* name;
    int dimension;
    int count;
    Calls calls;

    friend void PrintTo(const WayRow& row, std::ostream* stream) { *stream << row.name; }
};

class CellWayTest : public CellIterationTest, public testing::WithParamInterface<WayRow>
{};

TEST_P(CellWayTest, TakesNoMoreCellsThanItAppendsAndEndsWithTheIterator)
{
    BeginWithBody("box");
    VEXListPtrVEXCell list;
    EXPECT_EQ(CallsOf([&] { Take(list, GetParam().count, GetParam().dimension); }),
              GetParam().calls);
}

INSTANTIATE_TEST_SUITE_P(
    Of, CellWayTest,
    testing::Values(
        WayRow{"NoFace", 2, 0, kToTheFirstFace}, WayRow{"LessThanNoFace", 2, -7, kToTheFirstFace},
        WayRow{"OneFace", 2, 1, kToTheFirstFace},
        WayRow{"ThreeFaces", 2, 3, Together({kToTheFirstFace, Further(2)})},
        WayRow{"SixFaces", 2, 6, Together({kToTheFirstFace, Further(5)})},
        WayRow{"MoreFacesThanThereAre", 2, 20, Together({kToTheFirstFace, Further(6)})},
        WayRow{"OneEdge", 1, 1, Together({kToTheFirstFace, kToTheNextLower})},
        WayRow{"NoEdge", 1, 0, Together({kToTheFirstFace, kToTheNextLower})},
        WayRow{"ThreeEdges", 1, 3, Together({kToTheFirstFace, kToTheNextLower, Further(2)})},
        WayRow{"MoreEdgesThanThereAre", 1, 20,
               Together({kToTheFirstFace, kToTheNextLower, Further(4)})},
        WayRow{"OneVertex", 0, 1, Together({kToTheFirstFace, kToTheNextLower, kToTheNextLower})},
        WayRow{"TwoVertices", 0, 2,
               Together({kToTheFirstFace, kToTheNextLower, kToTheNextLower, Further(1)})},
        WayRow{"MoreVerticesThanThereAre", 0, 20,
               Together({kToTheFirstFace, kToTheNextLower, kToTheNextLower, Further(2)})}),
    [](const testing::TestParamInfo<WayRow>& row) { return std::string(row.param.name); });

TEST_F(CellIterationTest, LooksForTheBodyFirstWhenThereIsNone)
{
    BeginWithProduct("box");
    ASSERT_EQ(testCase.InitializeMechanicalPart(), S_OK);
    VEXListPtrVEXCell list;
    EXPECT_EQ(
        CallsOf([&] { Take(list, 1, 2); }),
        Together({{"cast:VEXPart->VEXIPartRequest(&)", "VEXIPartRequest::GetMainBody(\"\", &)",
                   "cast:VEXMechanicalTool->VEXIMechanicalTool(&)",
                   "VEXIMechanicalTool::GetLastShapedObject()",
                   "cast:VEXImportedShape->VEXIGeometricalElement(&)",
                   "VEXIGeometricalElement::GetBody()"},
                  kToTheFirstFace}));
    EXPECT_EQ(CellsIn(list), FirstOf(Available(2), 1));
}

// --- Faults on the way down ---------------------------------------------------------------------

/// What each dimension prints, and how many cells it gives, of three asked for.
struct FaultRow
{
    const char* name;
    const char* faults;
    std::string out[3];    ///< vertices, edges, faces
    std::size_t cells[3];  ///< likewise

    friend void PrintTo(const FaultRow& row, std::ostream* stream) { *stream << row.faults; }
};

class CellFaultTest : public CellIterationTest, public testing::WithParamInterface<FaultRow>
{};

TEST_P(CellFaultTest, IsToldOnceAndLeavesNeitherANullNorAnIterator)
{
    BeginWithBody("box");
    for (const int dimension : {2, 1, 0}) {
        SCOPED_TRACE(dimension);
        const auto place = static_cast<std::size_t>(dimension);
        EXPECT_EQ(Take(3, dimension, GetParam().faults), (Outcome{0, GetParam().out[place], ""}));
        EXPECT_EQ(taken.size(), GetParam().cells[place]);
        EXPECT_THAT(taken, testing::Not(testing::Contains(nullptr)));
        ExpectNoIteratorIsLeft();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Of, CellFaultTest,
    testing::Values(
        FaultRow{"NoDomain", "VEXBody::GetDomain=null", {kNoCells, kNoCells, kNoCells}, {}},
        FaultRow{"NoVolume", "VEXDomain::GetCell=null", {kNoCells, kNoCells, kNoCells}, {}},
        FaultRow{"NoIterator",
                 "VEXCell::CreateBoundedCellsIterator=null",
                 {kNoCells, kNoCells, kNoCells},
                 {}},
        FaultRow{"NoIteratorOfTheFace",
                 "VEXCell::CreateBoundedCellsIterator#2=null",
                 {kNoCells, kNoCells, ""},
                 {0, 0, 3}},
        FaultRow{"NoIteratorOfTheEdge",
                 "VEXCell::CreateBoundedCellsIterator#3=null",
                 {kNoCells, "", ""},
                 {0, 3, 3}},
        FaultRow{"NoFace", "VEXBoundedCellsIterator::Next#1=null", {kNoCells, kNoCells, ""}, {}},
        FaultRow{"NoSecond", "VEXBoundedCellsIterator::Next#2=null", {kNoCells, "", ""}, {0, 0, 1}},
        FaultRow{"NoThird", "VEXBoundedCellsIterator::Next#3=null", {"", "", ""}, {0, 1, 2}},
        FaultRow{"NoFourth", "VEXBoundedCellsIterator::Next#4=null", {"", "", ""}, {1, 2, 3}},
        FaultRow{"NothingEver", "VEXBoundedCellsIterator::Next=null", {kNoCells, kNoCells, ""}, {}},
        FaultRow{"FailingStart",
                 "VEXBoundedCellsIterator::Initialize=E_FAIL",
                 {kNoCells, kNoCells, ""},
                 {}},
        FaultRow{"FailingStartOfTheFace",
                 "VEXBoundedCellsIterator::Initialize#2=E_FAIL",
                 {kNoCells, "", ""},
                 {0, 0, 3}},
        FaultRow{"FailingStartOfTheEdge",
                 "VEXBoundedCellsIterator::Initialize#3=E_FAIL",
                 {"", "", ""},
                 {0, 3, 3}},
        FaultRow{"StartThatFailedInName",
                 "VEXBoundedCellsIterator::Initialize=E_FAIL,keep",
                 {"", "", ""},
                 {2, 3, 3}}),
    [](const testing::TestParamInfo<FaultRow>& row) { return std::string(row.param.name); });

// --- No body ------------------------------------------------------------------------------------

struct NoBodyRow
{
    const char* name;
    const char* faults;
    std::string out;

    friend void PrintTo(const NoBodyRow& row, std::ostream* stream) { *stream << row.faults; }
};

class CellsWithoutBodyTest : public CellIterationTest, public testing::WithParamInterface<NoBodyRow>
{};

TEST_P(CellsWithoutBodyTest, AreNoneAndEachStepTellsWhy)
{
    BeginWithProduct("box");
    for (const int dimension : {2, 1, 0}) {
        SCOPED_TRACE(dimension);
        testCase._MechanicalPart = nullptr;
        EXPECT_EQ(Take(3, dimension, GetParam().faults),
                  (Outcome{0, GetParam().out + kNoBody + kNoCells, ""}));
        EXPECT_EQ(taken.size(), 0U);
        EXPECT_EQ(testCase._Body, nullptr);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Of, CellsWithoutBodyTest,
    testing::Values(
        NoBodyRow{"NoBody", "VEXIGeometricalElement::GetBody=null", ""},
        NoBodyRow{"NoElement", "cast:VEXImportedShape->VEXIGeometricalElement=E_NOINTERFACE",
                  kNoElement},
        NoBodyRow{"NoShape", "VEXIMechanicalTool::GetLastShapedObject=null", kNoLastShape},
        NoBodyRow{"NoMainBody", "VEXIPartRequest::GetMainBody=null", kNoMainBody},
        NoBodyRow{"NoMechanicalPart", "VEXIPrtContainer::GetMechanicalPart=null",
                  kNoMechanicalPart},
        NoBodyRow{"NoPart", "VEXIDescendants::GetAllChildren=empty",
                  kNoPart + kNoMechanicalPartAtAll}),
    [](const testing::TestParamInfo<NoBodyRow>& row) { return std::string(row.param.name); });

TEST_F(CellIterationTest, OfARemovedPartGivesNothing)
{
    BeginWithBody("box");
    ASSERT_EQ(VEXDocumentServices::Remove(*Open(folder.File("box.VEXPart")), 1), S_OK);
    for (const int dimension : {2, 1, 0}) {
        EXPECT_EQ(Take(3, dimension), (Outcome{0, kNoCells, ""}));
        EXPECT_EQ(taken.size(), 0U);
    }
}

}  // namespace
}  // namespace hlxtest
