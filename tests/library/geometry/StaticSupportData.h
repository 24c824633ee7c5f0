// SPDX-License-Identifier: Apache-2.0
// The way from a mechanical part to the cells of its body, and the platform's own way to compare
// with.
#pragma once

#include "VEXMechanicalPart.h"
#include "library/StaticNavigation.h"

namespace hlxtest::statics {

class StaticSupportDataTest : public StaticNavigation
{
protected:
    /// Makes a copy of a specimen the part that is asked.
    void Take(const char* name) { part = RootOf(Open(PartSpecimen(folder, name))); }

    Outcome List(std::string_view faults = "")
    {
        return RunWith(faults, [&] {
            return HLXAnalysisTestUtils::GetSupportDataFromPartFeat(part, faces, edges, vertices,
                                                                    body);
        });
    }

    /// How many faces, edges and vertices are listed.
    std::vector<int> Counts() const { return {faces.Size(), edges.Size(), vertices.Size()}; }

    VEXBody_var PlatformBody()
    {
        const VEXIPartRequest_var request = part;
        VEXISpecObject_var mainBody;
        EXPECT_EQ(request->GetMainBody("", mainBody), S_OK);
        const VEXIMechanicalTool_var tool = mainBody;
        return VEXIGeometricalElement_var(tool->GetLastShapedObject())->GetBody();
    }

    /// The last cells of a list are those of the platform's body, in its order.
    template <class Cell>
    void ExpectAtTheEnd(const VEXListPtr<Cell>& cells, short dimension)
    {
        VEXListPtrVEXCell expected;
        ASSERT_EQ(PlatformBody()->GetAllCells(expected, dimension), S_OK);
        ASSERT_GE(cells.Size(), expected.Size());
        const int before = cells.Size() - expected.Size();
        for (int i = 1; i <= expected.Size(); ++i) {
            ASSERT_NE(cells[before + i], nullptr);
            EXPECT_EQ(cells[before + i]->IsEqual(expected[i]), 1) << dimension << ", " << i;
            EXPECT_EQ(cells[before + i]->GetDimension(), dimension);
        }
    }

    void ExpectAllAtTheEnd()
    {
        ExpectAtTheEnd(faces, 2);
        ExpectAtTheEnd(edges, 1);
        ExpectAtTheEnd(vertices, 0);
    }

    VEXISpecObject_var part;
    VEXListPtrVEXFace faces;
    VEXListPtrVEXEdge edges;
    VEXListPtrVEXVertex vertices;
    VEXBody_var body;
};

}  // namespace hlxtest::statics
