// SPDX-License-Identifier: Apache-2.0
// The three operations that take some cells of a body, with the private ones behind them, and the
// same cells taken through the platform's own interfaces.
#pragma once

#include "library/geometry/GeometryFixture.h"
#include "support/PrivateMember.h"

#include <set>

namespace hlxtest {

struct CellsOfDimension : MemberName<void (HLXBaseTestCase::*)(VEXListPtrVEXCell&, int, int)>
{
    friend Pointer Get(CellsOfDimension);
};

struct LowerCell : MemberName<void (HLXBaseTestCase::*)(VEXListPtrVEXCell&, VEXCell*&, int, int)>
{
    friend Pointer Get(LowerCell);
};

/// All cells that bound a cell, in the iterator's order.
inline Cells BoundaryOf(const VEXCell& cell)
{
    const std::unique_ptr<VEXBoundedCellsIterator> iterator(cell.CreateBoundedCellsIterator());
    EXPECT_EQ(iterator->Initialize(), S_OK);
    Cells cells;
    while (VEXCell* const next = iterator->Next()) {
        cells.push_back(next);
    }
    return cells;
}

/// The first `count` of them, one for a count below 1.
inline Cells FirstOf(Cells cells, int count)
{
    const std::size_t wanted = count < 1 ? 1 : static_cast<std::size_t>(count);
    cells.resize(std::min(cells.size(), wanted));
    return cells;
}

class CellIterationTest : public GeometryTest
{
protected:
    /// The cells of a dimension that can be had at most, through the platform: faces of the first
    /// volume, edges of its first face, vertices of that one's first edge.
    Cells Available(int dimension)
    {
        const VEXDomain* const domain = testCase._Body->GetDomain(1, 0);
        Cells cells = BoundaryOf(*domain->GetCell(1, 0));
        for (int reached = 2; reached > dimension && !cells.empty(); --reached) {
            cells = BoundaryOf(*cells.front());
        }
        return cells;
    }

    /// The operation for cells of a dimension, by its own name.
    void Take(VEXListPtrVEXCell& list, int count, int dimension)
    {
        if (dimension == 2) {
            testCase.InitializeFaceSupportByIteration(list, count);
        } else if (dimension == 1) {
            testCase.InitializeEdgeSupportByIteration(list, count);
        } else {
            testCase.InitializeVertexSupportByIteration(list, count);
        }
    }

    /// What it prints; the cells are in `taken`.
    Outcome Take(int count, int dimension, const char* faults = "")
    {
        VEXListPtrVEXCell list;
        Outcome outcome = RunWith(faults, [&] { Take(list, count, dimension); });
        taken = CellsIn(list);
        return outcome;
    }

    /// Whether only the case holds its body: no iterator is left.
    void ExpectNoIteratorIsLeft() { EXPECT_EQ(References(*testCase._Body.Get()), 1U); }

    Cells taken;
};

}  // namespace hlxtest
