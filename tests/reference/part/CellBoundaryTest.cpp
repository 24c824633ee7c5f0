// SPDX-License-Identifier: Apache-2.0
// The cells that bound a cell.
#include "PartFixture.h"

#include <memory>
#include <set>

namespace {

using testing::ElementsAreArray;
using testing::IsEmpty;

class CellBoundary : public hlxtest::PartTest
{
protected:
    static std::vector<VEXCell*> BoundaryOf(const VEXCell* cell)
    {
        const std::unique_ptr<VEXBoundedCellsIterator> each(cell->CreateBoundedCellsIterator());
        EXPECT_EQ(each->Initialize(), S_OK);
        return Rest(*each);
    }

    static std::vector<VEXCell*> Rest(VEXBoundedCellsIterator& each)
    {
        std::vector<VEXCell*> cells;
        while (VEXCell* const cell = each.Next()) {
            cells.push_back(cell);
        }
        return cells;
    }

    /// How many cells bound each cell of a dimension, sorted.
    static std::multiset<std::size_t> Counts(const VEXBody_var& body, short dimension)
    {
        std::multiset<std::size_t> counts;
        for (const VEXCell* const cell : Cells(body, dimension)) {
            counts.insert(BoundaryOf(cell).size());
        }
        return counts;
    }
};

TEST_F(CellBoundary, HasEachCellOnce)
{
    using Counts = std::multiset<std::size_t>;
    const struct
    {
        const char* name;
        Counts ofSolids, ofFaces, ofEdges;
    } specimens[] = {
        {"box", {6}, {4, 4, 4, 4, 4, 4}, Counts{2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2}},
        {"cylinder", {3}, {3, 1, 1}, {1, 1, 2}},
        {"sphere", {1}, {3}, {1, 1, 2}},
        {"torus", {1}, {2}, {1, 1}},
        {"bare_sphere", {1}, {0}, {}},
        {"wire_frame", {}, {}, {2, 2, 2, 1}},
        {"two_solids",
         {6, 3},
         {4, 4, 4, 4, 4, 4, 3, 1, 1},
         {2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 1, 1, 2}},
    };
    for (const auto& specimen : specimens) {
        SCOPED_TRACE(specimen.name);
        const VEXBody_var body = BodyOf(Open(specimen.name));
        EXPECT_EQ(CellBoundary::Counts(body, 3), specimen.ofSolids);
        EXPECT_EQ(CellBoundary::Counts(body, 2), specimen.ofFaces);
        EXPECT_EQ(CellBoundary::Counts(body, 1), specimen.ofEdges);
        for (short dimension = 1; dimension <= 3; ++dimension) {
            for (const VEXCell* const cell : Cells(body, dimension)) {
                const std::vector<VEXCell*> boundary = BoundaryOf(cell);
                EXPECT_EQ(std::set<VEXCell*>(boundary.begin(), boundary.end()).size(),
                          boundary.size());
                for (const VEXCell* const bound : boundary) {
                    EXPECT_EQ(bound->GetDimension(), dimension - 1);
                }
            }
        }
    }
}

TEST_F(CellBoundary, IsOfTheBodysOwnCells)
{
    const VEXBody_var body = BodyOf(Open("two_solids"));
    for (short dimension = 1; dimension <= 3; ++dimension) {
        std::set<VEXCell*> seen;
        for (const VEXCell* const cell : Cells(body, dimension)) {
            const std::vector<VEXCell*> boundary = BoundaryOf(cell);
            seen.insert(boundary.begin(), boundary.end());
        }
        const std::vector<VEXCell*> lower = Cells(body, static_cast<short>(dimension - 1));
        EXPECT_EQ(seen, std::set<VEXCell*>(lower.begin(), lower.end())) << dimension;
    }
}

TEST_F(CellBoundary, OfAVertexIsEmpty)
{
    const VEXBody_var body = BodyOf(Open("box"));
    for (const VEXCell* const vertex : Cells(body, 0)) {
        EXPECT_THAT(BoundaryOf(vertex), IsEmpty());
    }
}

TEST_F(CellBoundary, IsTheSameEachTimeAndAfterReopening)
{
    std::vector<std::vector<std::string>> kinds;
    for (const char* const folderName : {"first", "second"}) {
        SCOPED_TRACE(folderName);
        VEXDocument& document = Open("cylinder");
        const VEXBody_var body = BodyOf(document);
        const VEXCell* const side = Cells(body, 2)[0];
        EXPECT_THAT(BoundaryOf(side), ElementsAreArray(BoundaryOf(side)));
        kinds.push_back(Kinds(BoundaryOf(side)));
        ASSERT_EQ(VEXDocumentServices::Remove(document, 1), S_OK);
    }
    EXPECT_EQ(kinds[0], kinds[1]);
}

TEST_F(CellBoundary, BeginsWithInitializeAndBeginsAnew)
{
    const VEXBody_var body = BodyOf(Open("box"));
    const std::unique_ptr<VEXBoundedCellsIterator> each(
        Cells(body, 2)[0]->CreateBoundedCellsIterator());
    EXPECT_EQ(each->Next(), nullptr);
    ASSERT_EQ(each->Initialize(), S_OK);
    VEXCell* const first = each->Next();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(Rest(*each).size(), 3u);
    EXPECT_EQ(each->Next(), nullptr);
    ASSERT_EQ(each->Initialize(), S_OK);
    EXPECT_EQ(each->Next(), first);
}

TEST_F(CellBoundary, IteratorKeepsTheBody)
{
    VEXBody_var body = BodyOf(Open("box"));
    const std::unique_ptr<VEXBoundedCellsIterator> each(
        Cells(body, 2)[0]->CreateBoundedCellsIterator());
    body.Reset();
    ASSERT_EQ(each->Initialize(), S_OK);
    EXPECT_EQ(Rest(*each).size(), 4u);
}

TEST_F(CellBoundary, OfARemovedDocumentEnds)
{
    VEXDocument& document = Open("box");
    const VEXBody_var body = BodyOf(document);
    const VEXCell* const face = Cells(body, 2)[0];
    const std::unique_ptr<VEXBoundedCellsIterator> each(face->CreateBoundedCellsIterator());
    ASSERT_EQ(each->Initialize(), S_OK);
    ASSERT_NE(each->Next(), nullptr);
    ASSERT_EQ(VEXDocumentServices::Remove(document, 1), S_OK);
    EXPECT_EQ(each->Next(), nullptr);
    EXPECT_EQ(each->Initialize(), E_FAIL);
    EXPECT_EQ(face->CreateBoundedCellsIterator(), nullptr);
}

}  // namespace
