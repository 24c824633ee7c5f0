// SPDX-License-Identifier: Apache-2.0
// Traces of, and faults in, the operations on bodies and cells.
#include "PartFixture.h"
#include "host/system/Probes.h"

#include <memory>

namespace {

using testing::ElementsAre;

class ProbedBody : public hlxtest::PartTest
{
protected:
    ~ProbedBody() override
    {
        vex::probe::ClearFaults();
        vex::probe::StopRecording();
    }

    static void Break(const char* script)
    {
        std::string error;
        ASSERT_TRUE(vex::probe::SetFaults(script, error)) << error;
    }
};

TEST_F(ProbedBody, CallsAreRecordedUnderTheNamesOfTheirInterface)
{
    const VEXBody_var body = BodyOf(Open("torus"));
    const VEXFace_var face = VEXShare<VEXBaseUnknown>(Cells(body, 2)[0]);
    vex::probe::StartRecording();
    EXPECT_EQ(face->GetDimension(), 2);
    EXPECT_EQ(face->GetKind(), "torus");
    {
        const std::unique_ptr<VEXBoundedCellsIterator> each(face->CreateBoundedCellsIterator());
        EXPECT_EQ(each->Initialize(), S_OK);
        while (each->Next() != nullptr) {
        }
    }
    std::vector<std::string> calls;
    for (const vex::probe::Call& call : vex::probe::StopRecording()) {
        calls.push_back(call.name + " " + call.result);
    }
    EXPECT_THAT(calls, ElementsAre("VEXCell::GetDimension 2", "VEXCell::GetKind \"torus\"",
                                   "VEXCell::CreateBoundedCellsIterator pointer",
                                   "VEXBoundedCellsIterator::Initialize S_OK",
                                   "VEXBoundedCellsIterator::Next VEXEdgeCell",
                                   "VEXBoundedCellsIterator::Next VEXEdgeCell",
                                   "VEXBoundedCellsIterator::Next null"));
}

TEST_F(ProbedBody, CallsCanBeBroken)
{
    VEXDocument& document = Open("box");
    const VEXIGeometricalElement_var element = ElementOf(document);
    const VEXBody_var body = BodyOf(document);
    VEXCell* const face = Cells(body, 2)[0];
    const VEXIBRepAccess_var access = VEXBRepDecode(AccessesOf(document), VEXShare(face), body);
    const VEXIContainer_var accesses = AccessesOf(document);
    Break(
        "VEXIGeometricalElement::GetBody=null; VEXBody::GetAllCells=E_FAIL;"
        "VEXBody::GetDomain=null; VEXCell::CreateBoundedCellsIterator=null;"
        "VEXCell::GetMeasure=E_FAIL; VEXCell::GetDimension=7; VEXIBRepAccess::GetCell=E_FAIL;"
        "VEXBRepDecode=null");
    EXPECT_FALSE(element->GetBody());
    VEXListPtrVEXCell cells;
    EXPECT_EQ(body->GetAllCells(cells, 2), E_FAIL);
    EXPECT_EQ(body->GetDomain(1, 0), nullptr);
    EXPECT_EQ(face->CreateBoundedCellsIterator(), nullptr);
    double measure = 0;
    EXPECT_EQ(face->GetMeasure(measure), E_FAIL);
    EXPECT_EQ(face->GetDimension(), 7);
    VEXCell_var cell = VEXShare(face);
    VEXBody_var found = body;
    EXPECT_EQ(access->GetCell(cell, found), E_FAIL);
    EXPECT_FALSE(cell);
    EXPECT_FALSE(found);
    EXPECT_FALSE(VEXBRepDecode(accesses, VEXShare(face), body));
    vex::probe::ClearFaults();
    EXPECT_TRUE(VEXBRepDecode(accesses, VEXShare(face), body) == access);
}

}  // namespace
