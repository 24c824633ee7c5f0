// SPDX-License-Identifier: Apache-2.0
// A step to put loads into, in an analysis document that is linked to a product with one part, and
// what a load then holds, told by the platform.
#pragma once

#include "HLXAmplitudes.h"
#include "HLXLoads.h"
#include "VEXMechanicalPart.h"
#include "library/StaticSteps.h"

namespace hlxtest::statics {

/// An operation that creates a load.
using LoadCreation = HRESULT (*)(VEXDocument*, VEXUnicodeString, VEXISpecObject_var&,
                                 VEXISamAnalysisSet_var&);

class LoadTest : public StaticSteps
{
protected:
    LoadTest() : LoadTest("box") {}

    /// @param specimen  the part; null: the document is not linked to anything
    explicit LoadTest(const char* specimen)
    {
        if (specimen != nullptr) {
            Link(ProductSpecimen(folder, specimen));
        }
        step = AddStep(1, "HLXGeneralStaticStepLT", "Loading");
    }

    /// Creates a load in the step, into `load`.
    Outcome Create(LoadCreation create, std::string_view faults = "", const char* name = "Load")
    {
        return RunWith(faults, [&] { return create(analysis.Get(), name, load, step); });
    }

    /// What a load created with nobody to keep it leaves held.
    HeldCounts HeldAfterCreation(LoadCreation create, std::string_view faults = "")
    {
        return HeldAfter(faults, [&] {
            VEXISpecObject_var forgotten;
            return create(analysis.Get(), "Load", forgotten, step);
        });
    }

    /// The loads in the step, in order.
    VEXListValVEXBaseUnknown_var Loads() { return Below(step, "HLXLoad"); }

    /// The amplitudes of the document, in order.
    VEXListValVEXBaseUnknown_var Amplitudes() { return Below(Model(), "HLXAmplitudeLT"); }

    /// The supports of a load in order, such as
    /// "face 1 of box.VEXPart, GeometrySmartConnector" and "body of box.VEXPart, ".
    std::vector<std::string> SupportsOf(const VEXBaseUnknown_var& entity)
    {
        const VEXISamAnalysisSupport_var supported = entity;
        VEXListValVEXBaseUnknown_var supports;
        EXPECT_TRUE(supported && supported->GetSupports(supports) == S_OK);
        std::vector<std::string> texts;
        for (int i = 1; i <= supports.Size(); ++i) {
            const VEXISamSupport_var support = supports[i];
            VEXILinkableObject_var geometry;
            EXPECT_EQ(support->GetGeometry(geometry), S_OK);
            texts.push_back(TextOf(geometry) + ", " +
                            std::string(support->GetConnectorKind().View()));
        }
        return texts;
    }

    VEXISamAnalysisSet_var step;
    VEXISpecObject_var load;

private:
    std::string TextOf(const VEXILinkableObject_var& geometry) const
    {
        if (!geometry) {
            return "nothing";
        }
        const std::string file(geometry->GetDocument()->StorageName().View());
        return CellOf(geometry) + " of " + file.substr(file.rfind('/') + 1);
    }

    static std::string CellOf(const VEXIBRepAccess_var& access)
    {
        if (!access) {
            return "body";
        }
        VEXCell_var cell;
        VEXBody_var body;
        EXPECT_EQ(access->GetCell(cell, body), S_OK);
        const int dimension = cell->GetDimension();
        VEXListPtrVEXCell cells;
        EXPECT_EQ(body->GetAllCells(cells, static_cast<short>(dimension)), S_OK);
        int index = 1;
        while (index <= cells.Size() && cells[index]->IsEqual(cell.Get()) == 0) {
            ++index;
        }
        const char* const kinds[] = {"vertex", "edge", "face", "volume"};
        return kinds[dimension] + (" " + std::to_string(index));
    }
};

}  // namespace hlxtest::statics
