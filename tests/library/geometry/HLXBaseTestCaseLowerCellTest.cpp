// SPDX-License-Identifier: Apache-2.0
// The way down from one cell to those of a lower dimension.
#include "library/geometry/CellsByIteration.h"

namespace hlxtest {

template struct Reveal<LowerCell, &HLXBaseTestCase::GetLowerCell>;

namespace {

class LowerCellTest : public CellIterationTest
{
protected:
    Outcome Descend(VEXCell*& cell, int count, int level, const char* faults = "")
    {
        VEXListPtrVEXCell list;
        Outcome outcome =
            RunWith(faults, [&] { (testCase.*Get(LowerCell()))(list, cell, count, level); });
        taken = CellsIn(list);
        return outcome;
    }

    VEXCell* Face() { return Available(2).front(); }
    VEXCell* Edge() { return Available(1).front(); }
    VEXCell* Vertex() { return Available(0).front(); }
};

TEST_F(LowerCellTest, AtTheSecondLevelTakesWhatBoundsTheCell)
{
    BeginWithBody("box");
    for (const int level : {2, 3, 9}) {
        VEXCell* cell = Face();
        EXPECT_EQ(Descend(cell, 3, level), (Outcome{0, "", ""}));
        EXPECT_EQ(taken, FirstOf(Available(1), 3)) << level;
        cell = Edge();
        EXPECT_EQ(Descend(cell, 3, level), (Outcome{0, "", ""}));
        EXPECT_EQ(taken, Available(0)) << level;
    }
    ExpectNoIteratorIsLeft();
}

TEST_F(LowerCellTest, AtTheFirstLevelGoesOneCellDeeper)
{
    BeginWithBody("box");
    VEXCell* cell = Face();
    EXPECT_EQ(Descend(cell, 3, 1), (Outcome{0, "", ""}));
    EXPECT_EQ(taken, Available(0));
    ExpectNoIteratorIsLeft();
}

TEST_F(LowerCellTest, BelowGoesAsDeepAsThereAreLevels)
{
    BeginWithBody("box");
    VEXCell* cell = testCase._Body->GetDomain(1, 0)->GetCell(1, 0);
    EXPECT_EQ(Descend(cell, 3, 0), (Outcome{0, "", ""}));
    EXPECT_EQ(taken, Available(0));
    cell = testCase._Body->GetDomain(1, 0)->GetCell(1, 0);
    EXPECT_EQ(Descend(cell, 3, 1), (Outcome{0, "", ""}));
    EXPECT_EQ(taken, FirstOf(Available(1), 3));
    ExpectNoIteratorIsLeft();
}

TEST_F(LowerCellTest, LeavesTheFirstCellThatItTook)
{
    BeginWithBody("box");
    VEXCell* cell = Face();
    Descend(cell, 1, 2);
    EXPECT_EQ(cell, Edge());
    cell = Face();
    Descend(cell, 0, 1);
    EXPECT_EQ(cell, Vertex());
}

TEST_F(LowerCellTest, TakesOneForACountBelowOne)
{
    BeginWithBody("box");
    for (const int count : {1, 0, -1, -1000}) {
        VEXCell* cell = Face();
        EXPECT_EQ(Descend(cell, count, 2), (Outcome{0, "", ""}));
        EXPECT_EQ(taken, Cells{Edge()}) << count;
    }
}

TEST_F(LowerCellTest, WithoutACellTellsThatThereIsNone)
{
    BeginWithBody("box");
    for (const int level : {1, 2, 3}) {
        VEXCell* cell = nullptr;
        EXPECT_EQ(Descend(cell, 3, level), (Outcome{0, kNoCells, ""}));
        EXPECT_EQ(cell, nullptr);
        EXPECT_EQ(taken, Cells{});
    }
}

TEST_F(LowerCellTest, OfAVertexTakesNothingAndTellsSoOnlyWhereItGoesDeeper)
{
    BeginWithBody("box");
    VEXCell* cell = Vertex();
    EXPECT_EQ(Descend(cell, 3, 2), (Outcome{0, "", ""}));
    EXPECT_EQ(cell, nullptr);
    EXPECT_EQ(taken, Cells{});
    cell = Vertex();
    EXPECT_EQ(Descend(cell, 3, 1), (Outcome{0, kNoCells, ""}));
    EXPECT_EQ(cell, nullptr);
    EXPECT_EQ(taken, Cells{});
    ExpectNoIteratorIsLeft();
}

TEST_F(LowerCellTest, WithoutAnIteratorStopsAtTheCell)
{
    BeginWithBody("box");
    VEXCell* cell = Face();
    VEXCell* const face = cell;
    EXPECT_EQ(Descend(cell, 3, 2, "VEXCell::CreateBoundedCellsIterator=null"),
              (Outcome{0, kNoCells, ""}));
    EXPECT_EQ(cell, face);
    EXPECT_EQ(taken, Cells{});
    EXPECT_EQ(Descend(cell, 3, 1, "VEXCell::CreateBoundedCellsIterator#2=null"),
              (Outcome{0, kNoCells, ""}));
    EXPECT_EQ(cell, Edge());
    EXPECT_EQ(taken, Cells{});
    ExpectNoIteratorIsLeft();
}

TEST_F(LowerCellTest, DoesNotTouchTheBody)
{
    BeginWithBody("box");
    VEXCell* cell = Face();
    VEXBody_var body = testCase._Body;
    testCase._Body = nullptr;
    EXPECT_EQ(Descend(cell, 4, 2), (Outcome{0, "", ""}));
    EXPECT_EQ(taken.size(), 4U);
    EXPECT_EQ(testCase._Body, nullptr);
    EXPECT_EQ(References(*body.Get()), 1U);
}

}  // namespace
}  // namespace hlxtest
