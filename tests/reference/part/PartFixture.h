// SPDX-License-Identifier: Apache-2.0
// Part documents with geometry, and the way to their cells through interfaces.
#pragma once

#include "VEXDocumentServices.h"
#include "VEXMechanicalPart.h"
#include "host/feature/DocumentSession.h"
#include "host/part/Body.h"
#include "host/product/PartGeometry.h"
#include "host/product/ProductStructure.h"
#include "support/GeometrySpecimens.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace hlxtest {

class PartTest : public testing::Test
{
protected:
    ~PartTest() override
    {
        auto& session = vex::DocumentSession::Instance();
        std::string error;
        while (!session.Documents().empty()) {
            session.Remove(*session.Documents().back(), true, error);
        }
    }

    static VEXDocument& OpenFile(const std::string& path)
    {
        VEXDocument* document = nullptr;
        EXPECT_EQ(VEXDocumentServices::OpenDocument(VEXUnicodeString(path), document, 0), S_OK);
        return *document;
    }

    /// A copy of a specimen (PartSpecimen), open.
    VEXDocument& Open(const char* name) { return OpenFile(PartSpecimen(folder, name)); }

    static VEXIPartRequest_var PartOf(VEXDocument& document)
    {
        const VEXIContainerOfDocument_var containers = VEXShare<VEXBaseUnknown>(&document);
        VEXIContainer* container = nullptr;
        EXPECT_EQ(containers->GetSpecContainer(container), S_OK);
        const VEXIPrtContainer_var held = VEXAdopt(container);
        return held->GetMechanicalPart();
    }

    static VEXIMechanicalTool_var MainBodyOf(VEXDocument& document)
    {
        VEXISpecObject_var mainBody;
        EXPECT_EQ(PartOf(document)->GetMainBody("", mainBody), S_OK);
        return mainBody;
    }

    static VEXIGeometricalElement_var ElementOf(VEXDocument& document)
    {
        return MainBodyOf(document)->GetLastShapedObject();
    }

    static VEXBody_var BodyOf(VEXDocument& document) { return ElementOf(document)->GetBody(); }

    static VEXIContainer_var AccessesOf(VEXDocument& document)
    {
        const VEXIContainerOfDocument_var containers = VEXShare<VEXBaseUnknown>(&document);
        VEXIContainer* container = nullptr;
        EXPECT_EQ(containers->GetBRepContainer(container), S_OK);
        return VEXAdopt(container);
    }

    static std::vector<VEXCell*> Cells(const VEXBody_var& body, short dimension)
    {
        VEXListPtrVEXCell list;
        EXPECT_EQ(body->GetAllCells(list, dimension), S_OK);
        std::vector<VEXCell*> cells;
        for (int i = 1; i <= list.Size(); ++i) {
            cells.push_back(list[i]);
        }
        return cells;
    }

    static std::vector<std::string> Kinds(const std::vector<VEXCell*>& cells)
    {
        std::vector<std::string> kinds;
        for (const VEXCell* const cell : cells) {
            kinds.emplace_back(cell->GetKind().View());
        }
        return kinds;
    }

    static double Measure(const VEXCell* cell)
    {
        double measure = -1;
        EXPECT_EQ(cell->GetMeasure(measure), S_OK);
        return measure;
    }

    static vex::Document& Inside(VEXDocument& document) { return *vex::Document::From(&document); }

    /// Gives the part another geometry: that of an open part.
    static void Reshape(VEXDocument& document, VEXDocument& source)
    {
        std::span<const std::byte> bytes;
        std::string error;
        vex::Document& from = Inside(source);
        ASSERT_TRUE(
            from.Geometry(static_cast<std::uint64_t>(vex::GeometryNumber(from)), bytes, error))
            << error;
        ASSERT_TRUE(vex::GiveGeometry(Inside(document), {bytes.begin(), bytes.end()}));
    }

    TemporaryFolder folder;
};

}  // namespace hlxtest
