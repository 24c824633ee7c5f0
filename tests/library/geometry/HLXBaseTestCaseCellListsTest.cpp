// SPDX-License-Identifier: Apache-2.0
// All faces, edges and vertices of a body, as lists.
#include "library/geometry/GeometryFixture.h"

#include <algorithm>
#include <set>

namespace hlxtest {
namespace {

using ListOperation = void (*)(ExposedTestCase&, VEXListPtrVEXCell&);

/// The three lists: how they are asked for and of which dimension their cells are.
const struct
{
    ListOperation fill;
    short dimension;
} lists[] = {
    {[](ExposedTestCase& test, VEXListPtrVEXCell& cells) { test.GetFaceList(cells); }, 2},
    {[](ExposedTestCase& test, VEXListPtrVEXCell& cells) { test.GetEdgeList(cells); }, 1},
    {[](ExposedTestCase& test, VEXListPtrVEXCell& cells) { test.GetVertexList(cells); }, 0},
};

class CellListTest : public GeometryTest
{
protected:
    Outcome Fill(std::size_t list, const char* faults = "")
    {
        return RunWith(faults, [&] { lists[list].fill(testCase, cells); });
    }

    VEXListPtrVEXCell cells;
};

struct CellCounts
{
    const char* name;
    int ofDimension[3];  ///< faces, edges, vertices

    friend void PrintTo(const CellCounts& row, std::ostream* stream) { *stream << row.name; }
};

class CellListOfSpecimenTest : public CellListTest, public testing::WithParamInterface<CellCounts>
{};

TEST_P(CellListOfSpecimenTest, HasEachCellOfTheDimensionOnceInThePlatformsOrder)
{
    BeginWithBody(GetParam().name);
    for (std::size_t i = 0; i < std::size(lists); ++i) {
        cells.RemoveAll();
        EXPECT_EQ(Fill(i), (Outcome{0, "", ""}));
        EXPECT_EQ(cells.Size(), GetParam().ofDimension[i]);
        VEXListPtrVEXCell platforms;
        ASSERT_EQ(testCase._Body->GetAllCells(platforms, lists[i].dimension), S_OK);
        const Cells found = CellsIn(cells);
        EXPECT_EQ(found, CellsIn(platforms));
        EXPECT_EQ(std::set<VEXCell*>(found.begin(), found.end()).size(), found.size());
        EXPECT_TRUE(std::all_of(found.begin(), found.end(), [&](const VEXCell* cell) {
            return cell->GetDimension() == lists[i].dimension;
        }));
    }
    EXPECT_EQ(References(*testCase._Body.Get()), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Of, CellListOfSpecimenTest,
    testing::Values(CellCounts{"box", {6, 12, 8}}, CellCounts{"cylinder", {3, 3, 2}},
                    CellCounts{"sphere", {1, 3, 2}}, CellCounts{"torus", {1, 2, 1}},
                    CellCounts{"bare_sphere", {1, 0, 0}}, CellCounts{"sheets", {7, 16, 12}},
                    CellCounts{"wire_frame", {0, 4, 5}}, CellCounts{"two_solids", {9, 15, 10}}),
    [](const testing::TestParamInfo<CellCounts>& row) { return std::string(row.param.name); });

TEST_F(CellListTest, AsksTheBodyForItsCellsOfTheDimension)
{
    BeginWithBody("box");
    const char* const calls[] = {"VEXBody::GetAllCells(&, 2)", "VEXBody::GetAllCells(&, 1)",
                                 "VEXBody::GetAllCells(&, 0)"};
    for (std::size_t i = 0; i < std::size(lists); ++i) {
        EXPECT_EQ(CallsOf([&] { lists[i].fill(testCase, cells); }),
                  (std::vector<std::string>{calls[i]}));
    }
}

TEST_F(CellListTest, IsAppendedTo)
{
    BeginWithBody("box");
    int before = 0;
    for (std::size_t i = 0; i < std::size(lists); ++i) {
        for (int time = 0; time < 2; ++time) {
            const int count = i == 0 ? 6 : i == 1 ? 12 : 8;
            Fill(i);
            EXPECT_EQ(cells.Size(), before + count);
            before += count;
        }
    }
    EXPECT_EQ(cells[1], cells[7]);
    EXPECT_EQ(cells[13], cells[25]);
    EXPECT_EQ(cells[37], cells[45]);
}

TEST_F(CellListTest, StaysEmptyWithoutABodyThatIsNotLookedFor)
{
    BeginWithProduct("box");
    for (std::size_t i = 0; i < std::size(lists); ++i) {
        EXPECT_EQ(Fill(i), (Outcome{0, "", ""}));
        EXPECT_EQ(CallsOf([&] { lists[i].fill(testCase, cells); }), std::vector<std::string>{});
    }
    EXPECT_EQ(cells.Size(), 0);
    EXPECT_EQ(testCase._Body, nullptr);
}

TEST_F(CellListTest, StaysAsItIsWithoutAWordWhenThePlatformFails)
{
    BeginWithBody("box");
    for (std::size_t i = 0; i < std::size(lists); ++i) {
        EXPECT_EQ(Fill(i, "VEXBody::GetAllCells=E_FAIL"), (Outcome{0, "", ""}));
        EXPECT_EQ(Fill(i, "VEXBody::GetAllCells=empty"), (Outcome{0, "", ""}));
    }
    EXPECT_EQ(cells.Size(), 0);
}

TEST_F(CellListTest, HasWhatThePlatformGaveAlongWithAFailure)
{
    BeginWithBody("box");
    for (std::size_t i = 0; i < std::size(lists); ++i) {
        EXPECT_EQ(Fill(i, "VEXBody::GetAllCells=E_FAIL,keep"), (Outcome{0, "", ""}));
    }
    EXPECT_EQ(cells.Size(), 6 + 12 + 8);
}

TEST_F(CellListTest, OfARemovedPartStaysEmptyWithoutAWord)
{
    BeginWithBody("box");
    ASSERT_EQ(VEXDocumentServices::Remove(*Open(folder.File("box.VEXPart")), 1), S_OK);
    for (std::size_t i = 0; i < std::size(lists); ++i) {
        EXPECT_EQ(Fill(i), (Outcome{0, "", ""}));
    }
    EXPECT_EQ(cells.Size(), 0);
}

}  // namespace
}  // namespace hlxtest
