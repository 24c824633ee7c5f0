// SPDX-License-Identifier: Apache-2.0
// Some faces, edges and vertices of a body: how many, which, none twice.
#include "host/product/StepImport.h"
#include "library/geometry/CellsByIteration.h"

#include <algorithm>

namespace hlxtest {

template struct Reveal<CellsOfDimension, &HLXBaseTestCase::GetCellsOfDimension>;

namespace {

constexpr int kCounts[] = {-1, 0, 1, 2, 3, 1000};

/// How many cells each of kCounts gives.
struct CellNumbers
{
    const char* name;
    std::size_t faces[6];
    std::size_t edges[6];
    std::size_t vertices[6];
    const char* outOfVertices;  ///< printed when vertices are asked for

    friend void PrintTo(const CellNumbers& row, std::ostream* stream) { *stream << row.name; }
};

class CellsOfSpecimenTest : public CellIterationTest,
                            public testing::WithParamInterface<CellNumbers>
{
protected:
    void ExpectCells(int count, int dimension, std::size_t number)
    {
        SCOPED_TRACE(testing::Message() << count << " of dimension " << dimension);
        const std::string out = dimension == 0 ? GetParam().outOfVertices : "";
        EXPECT_EQ(Take(count, dimension), (Outcome{0, out, ""}));
        EXPECT_EQ(taken.size(), number);
        EXPECT_EQ(taken, FirstOf(Available(dimension), count));
        EXPECT_EQ(std::set<VEXCell*>(taken.begin(), taken.end()).size(), taken.size());
        EXPECT_TRUE(std::all_of(taken.begin(), taken.end(), [&](const VEXCell* cell) {
            return cell != nullptr && cell->GetDimension() == dimension;
        }));
        ExpectNoIteratorIsLeft();
    }
};

TEST_P(CellsOfSpecimenTest, AreTheFirstOnesOfTheWayDownFromTheFirstVolume)
{
    BeginWithBody(GetParam().name);
    for (std::size_t i = 0; i < std::size(kCounts); ++i) {
        ExpectCells(kCounts[i], 2, GetParam().faces[i]);
        ExpectCells(kCounts[i], 1, GetParam().edges[i]);
        ExpectCells(kCounts[i], 0, GetParam().vertices[i]);
    }
}

TEST_P(CellsOfSpecimenTest, AreTheSameWhenTheBodyIsFoundOnTheWay)
{
    BeginWithProduct(GetParam().name);
    EXPECT_EQ(Take(3, 2), (Outcome{0, "", ""}));
    EXPECT_EQ(taken.size(), GetParam().faces[4]);
    ASSERT_NE(testCase._Body, nullptr);
    EXPECT_EQ(taken, FirstOf(Available(2), 3));
    ExpectNoIteratorIsLeft();
}

// A cylinder's first face is its side, whose first edge is a circle; a sphere's first edge is the
// one without length at a pole.
INSTANTIATE_TEST_SUITE_P(
    Of, CellsOfSpecimenTest,
    testing::Values(
        CellNumbers{"box", {1, 1, 1, 2, 3, 6}, {1, 1, 1, 2, 3, 4}, {1, 1, 1, 2, 2, 2}, ""},
        CellNumbers{"cylinder", {1, 1, 1, 2, 3, 3}, {1, 1, 1, 2, 3, 3}, {1, 1, 1, 1, 1, 1}, ""},
        CellNumbers{"sphere", {1, 1, 1, 1, 1, 1}, {1, 1, 1, 2, 3, 3}, {1, 1, 1, 1, 1, 1}, ""},
        CellNumbers{"torus", {1, 1, 1, 1, 1, 1}, {1, 1, 1, 2, 2, 2}, {1, 1, 1, 1, 1, 1}, ""},
        CellNumbers{"bare_sphere",
                    {1, 1, 1, 1, 1, 1},
                    {0, 0, 0, 0, 0, 0},
                    {0, 0, 0, 0, 0, 0},
                    "Cannot get the cells of the body!"},
        CellNumbers{"two_solids", {1, 1, 1, 2, 3, 6}, {1, 1, 1, 2, 3, 4}, {1, 1, 1, 2, 2, 2}, ""}),
    [](const testing::TestParamInfo<CellNumbers>& row) { return std::string(row.param.name); });

TEST_F(CellIterationTest, TakesClosedEdgesSeamsAndEdgesWithoutLengthOnce)
{
    BeginWith(SeveralPartsSpecimen(folder));
    testCase._PartIndex = 2;
    Take(1000, 1);
    std::vector<std::string> kinds;
    for (const VEXCell* const edge : taken) {
        kinds.emplace_back(edge->GetKind().View());
    }
    EXPECT_THAT(kinds, testing::UnorderedElementsAre("circle", "line", "circle"));
    EXPECT_EQ(kinds[0], "circle");
    Take(1000, 2);
    EXPECT_EQ(taken[0]->GetKind(), "cylinder");
}

TEST_F(CellIterationTest, TakesTheEdgeAtThePoleOfASphereAsItsFirst)
{
    BeginWithBody("sphere");
    Take(1000, 1);
    std::vector<std::string> kinds;
    for (const VEXCell* const edge : taken) {
        kinds.emplace_back(edge->GetKind().View());
    }
    EXPECT_THAT(kinds, testing::UnorderedElementsAre("degenerate", "circle", "degenerate"));
    EXPECT_EQ(kinds[0], "degenerate");
}

TEST_F(CellIterationTest, TakesCellsOfTheSample)
{
    std::string product;
    std::string error;
    ASSERT_TRUE(vex::ImportStep(HLX_SOURCE_DIR "/samples/bracket_assembly.step", folder.Path(),
                                "sample", product, error))
        << error;
    BeginWith(product);
    ASSERT_EQ(testCase.InitializeBody(), S_OK);
    EXPECT_EQ(AliasOf(testCase._MechanicalPart), "Bracket");
    VEXListPtrVEXCell faces;
    testCase.GetFaceList(faces);
    ASSERT_GT(faces.Size(), 3);
    for (const int dimension : {2, 1, 0}) {
        for (const int count : kCounts) {
            SCOPED_TRACE(testing::Message() << count << " of dimension " << dimension);
            EXPECT_EQ(Take(count, dimension), (Outcome{0, "", ""}));
            EXPECT_EQ(taken, FirstOf(Available(dimension), count));
            EXPECT_EQ(std::set<VEXCell*>(taken.begin(), taken.end()).size(), taken.size());
            for (const VEXCell* const cell : taken) {
                EXPECT_EQ(cell->GetDimension(), dimension);
            }
        }
    }
    Take(1000, 2);
    EXPECT_THAT(taken, testing::UnorderedElementsAreArray(CellsIn(faces)));
    ExpectNoIteratorIsLeft();
}

TEST_F(CellIterationTest, AppendsToTheList)
{
    BeginWithBody("box");
    VEXListPtrVEXCell list;
    Take(list, 2, 2);
    Take(list, 3, 1);
    Take(list, 2, 0);
    Take(list, 2, 2);
    Cells expected = FirstOf(Available(2), 2);
    for (const Cells& more : {FirstOf(Available(1), 3), Available(0), FirstOf(Available(2), 2)}) {
        expected.insert(expected.end(), more.begin(), more.end());
    }
    EXPECT_EQ(CellsIn(list), expected);
    EXPECT_EQ(list.Size(), 9);
}

TEST_F(CellIterationTest, TakesTheBodyThatIsThereWhateverIsChosenSince)
{
    BeginWith(SeveralPartsSpecimen(folder));
    ASSERT_EQ(testCase.InitializeBody(), S_OK);
    const VEXBody_var box = testCase._Body;
    testCase._PartIndex = 3;
    testCase._MechanicalPart = nullptr;
    EXPECT_EQ(Take(6, 2), (Outcome{0, "", ""}));
    EXPECT_EQ(taken.size(), 6U);
    EXPECT_EQ(testCase._Body.Get(), box.Get());
}

TEST_F(CellIterationTest, FindsTheBodyOfTheChosenPart)
{
    BeginWith(SeveralPartsSpecimen(folder));
    testCase._PartIndex = 2;
    EXPECT_EQ(Take(1000, 2), (Outcome{0, "", ""}));
    EXPECT_EQ(taken.size(), 3U);
    EXPECT_NE(testCase._Body, nullptr);
}

TEST_F(CellIterationTest, OfADimensionAboveFacesTakesFaces)
{
    BeginWithBody("box");
    for (const int dimension : {2, 3, 7}) {
        VEXListPtrVEXCell list;
        EXPECT_EQ(OutcomeOf([&] { (testCase.*Get(CellsOfDimension()))(list, 4, dimension); }),
                  (Outcome{0, "", ""}));
        EXPECT_EQ(CellsIn(list), FirstOf(Available(2), 4)) << dimension;
    }
}

TEST_F(CellIterationTest, OfADimensionBelowVerticesTakesNothing)
{
    BeginWithBody("box");
    const struct
    {
        int dimension;
        const std::string& out;
    } rows[] = {{-2, kNoCells}, {-3, kNoCells}};
    VEXListPtrVEXCell list;
    EXPECT_EQ(OutcomeOf([&] { (testCase.*Get(CellsOfDimension()))(list, 4, -1); }),
              (Outcome{0, "", ""}));
    for (const auto& row : rows) {
        EXPECT_EQ(OutcomeOf([&] { (testCase.*Get(CellsOfDimension()))(list, 4, row.dimension); }),
                  (Outcome{0, row.out, ""}))
            << row.dimension;
    }
    EXPECT_EQ(list.Size(), 0);
    ExpectNoIteratorIsLeft();
}

}  // namespace
}  // namespace hlxtest
