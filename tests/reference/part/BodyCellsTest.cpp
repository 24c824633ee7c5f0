// SPDX-License-Identifier: Apache-2.0
// The cells of bodies: how many, of what kind and size, and which interfaces they have.
#include "PartFixture.h"
#include "VEXProductStructure.h"

#include <cmath>
#include <numbers>

namespace {

using std::numbers::pi;
using testing::Each;
using testing::ElementsAre;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

using Names = std::vector<std::string>;

struct Specimen
{
    const char* name;
    Names vertices, edges, faces, solids;
};

Names Times(std::size_t count, const char* kind)
{
    return Names(count, kind);
}

Names Together(Names head, const Names& tail)
{
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

const Specimen specimens[] = {
    {"box", Times(8, "vertex"), Times(12, "line"), Times(6, "plane"), {"solid"}},
    {"cylinder",
     Times(2, "vertex"),
     {"circle", "circle", "line"},
     {"cylinder", "plane", "plane"},
     {"solid"}},
    {"sphere", Times(2, "vertex"), {"circle", "degenerate", "degenerate"}, {"sphere"}, {"solid"}},
    {"torus", {"vertex"}, {"circle", "circle"}, {"torus"}, {"solid"}},
    {"bare_sphere", {}, {}, {"sphere"}, {"solid"}},
    {"sheets", Times(12, "vertex"), Times(16, "line"), Times(7, "plane"), {}},
    {"wire_frame", Times(5, "vertex"), {"line", "line", "line", "circle"}, {}, {}},
    {"two_solids", Times(10, "vertex"), Together(Times(13, "line"), Times(2, "circle")),
     Together(Times(8, "plane"), {"cylinder"}), Times(2, "solid")},
};

class BodyCells : public hlxtest::PartTest
{};

TEST_F(BodyCells, AreThoseOfTheShape)
{
    for (const Specimen& specimen : specimens) {
        SCOPED_TRACE(specimen.name);
        const VEXBody_var body = BodyOf(Open(specimen.name));
        ASSERT_TRUE(body);
        EXPECT_THAT(Kinds(Cells(body, 0)), UnorderedElementsAreArray(specimen.vertices));
        EXPECT_THAT(Kinds(Cells(body, 1)), UnorderedElementsAreArray(specimen.edges));
        EXPECT_THAT(Kinds(Cells(body, 2)), UnorderedElementsAreArray(specimen.faces));
        EXPECT_THAT(Kinds(Cells(body, 3)), UnorderedElementsAreArray(specimen.solids));
    }
}

TEST_F(BodyCells, KnowTheirDimensionAndAreTheSameObjectsEachTime)
{
    for (const Specimen& specimen : specimens) {
        SCOPED_TRACE(specimen.name);
        const VEXBody_var body = BodyOf(Open(specimen.name));
        for (short dimension = 0; dimension <= 3; ++dimension) {
            const std::vector<VEXCell*> cells = Cells(body, dimension);
            EXPECT_EQ(Cells(body, dimension), cells);
            for (VEXCell* const cell : cells) {
                EXPECT_EQ(cell->GetDimension(), dimension);
            }
        }
    }
}

TEST_F(BodyCells, HaveLengthsAreasAndVolumes)
{
    const VEXBody_var box = BodyOf(Open("box"));
    EXPECT_NEAR(Measure(Cells(box, 3)[0]), 6000, 1e-6);
    EXPECT_EQ(Measure(Cells(box, 0)[0]), 0);
    double area = 0;
    for (const VEXCell* const face : Cells(box, 2)) {
        area += Measure(face);
    }
    EXPECT_NEAR(area, 2200, 1e-6);
    const VEXBody_var torus = BodyOf(Open("torus"));
    EXPECT_NEAR(Measure(Cells(torus, 2)[0]), 4 * pi * pi * 20 * 5, 1e-3);
    for (const char* const name : {"sphere", "bare_sphere"}) {
        const VEXBody_var sphere = BodyOf(Open(name));
        EXPECT_NEAR(Measure(Cells(sphere, 2)[0]), 400 * pi, 1e-3) << name;
        EXPECT_NEAR(Measure(Cells(sphere, 3)[0]), 4000 * pi / 3, 1e-2) << name;
        for (const VEXCell* const edge : Cells(sphere, 1)) {
            EXPECT_NEAR(Measure(edge), edge->GetKind() == "degenerate" ? 0 : 10 * pi, 1e-6);
        }
    }
}

TEST_F(BodyCells, HaveTheInterfacesOfTheirDimensionOnly)
{
    const VEXBody_var body = BodyOf(Open("cylinder"));
    for (short dimension = 0; dimension <= 3; ++dimension) {
        for (VEXCell* const pointer : Cells(body, dimension)) {
            const VEXCell_var cell = VEXShare(pointer);
            EXPECT_EQ(static_cast<bool>(VEXVertex_var(VEXBaseUnknown_var(cell))), dimension == 0);
            EXPECT_EQ(static_cast<bool>(VEXEdge_var(VEXBaseUnknown_var(cell))), dimension == 1);
            EXPECT_EQ(static_cast<bool>(VEXFace_var(VEXBaseUnknown_var(cell))), dimension == 2);
            EXPECT_EQ(static_cast<bool>(VEXILinkableObject_var(cell)), dimension != 3);
            EXPECT_EQ(cell->IsNull(), 0);
        }
    }
}

TEST_F(BodyCells, AnswerTheSameThroughEachOfTheirInterfaces)
{
    VEXDocument& document = Open("cylinder");
    const VEXBody_var body = BodyOf(document);
    for (VEXCell* const pointer : Cells(body, 2)) {
        const VEXCell_var cell = VEXShare(pointer);
        const VEXFace_var face = VEXBaseUnknown_var(cell);
        EXPECT_TRUE(cell == face);
        EXPECT_EQ(face->GetDimension(), 2);
        EXPECT_EQ(face->GetKind(), cell->GetKind());
        EXPECT_EQ(Measure(face.Get()), Measure(pointer));
        EXPECT_EQ(VEXILinkableObject_var(face)->GetDocument(), &document);
    }
}

TEST_F(BodyCells, OfNoDimensionAreRefused)
{
    const VEXBody_var body = BodyOf(Open("box"));
    for (const int dimension : {-32768, -1, 4, 32767}) {
        VEXListPtrVEXCell cells;
        EXPECT_EQ(body->GetAllCells(cells, static_cast<short>(dimension)), E_INVALIDARG);
        EXPECT_EQ(cells.Size(), 0);
    }
}

TEST_F(BodyCells, AreAppended)
{
    const VEXBody_var body = BodyOf(Open("box"));
    VEXListPtrVEXCell cells;
    ASSERT_EQ(body->GetAllCells(cells, 2), S_OK);
    ASSERT_EQ(body->GetAllCells(cells, 2), S_OK);
    ASSERT_EQ(cells.Size(), 12);
    EXPECT_EQ(cells[1], cells[7]);
}

}  // namespace
