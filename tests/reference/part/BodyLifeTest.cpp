// SPDX-License-Identifier: Apache-2.0
// How long bodies and cells live, and what is left of them when document or geometry is gone.
#include "PartFixture.h"
#include "VEXProductStructure.h"
#include "host/system/Probes.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class BodyLife : public hlxtest::PartTest
{
protected:
    static void ExpectGone(const VEXBody_var& body, const VEXCell_var& cell)
    {
        VEXListPtrVEXCell cells;
        EXPECT_EQ(body->GetAllCells(cells, 2), E_FAIL);
        EXPECT_EQ(cells.Size(), 0);
        EXPECT_EQ(body->GetDomain(1, 0), nullptr);
        EXPECT_EQ(body->IsNull(), 1);
        EXPECT_EQ(cell->IsNull(), 1);
        EXPECT_EQ(cell->GetDimension(), -1);
        EXPECT_TRUE(cell->GetKind().IsEmpty());
        EXPECT_EQ(cell->CreateBoundedCellsIterator(), nullptr);
        double measure = 1;
        EXPECT_EQ(cell->GetMeasure(measure), E_FAIL);
        EXPECT_EQ(VEXILinkableObject_var(cell)->GetDocument(), nullptr);
    }
};

TEST_F(BodyLife, ThereIsOneBodyOfAPart)
{
    VEXDocument& document = Open("box");
    const VEXBody_var body = BodyOf(document);
    EXPECT_EQ(BodyOf(document).Get(), body.Get());
    EXPECT_NE(BodyOf(Open("cylinder")).Get(), body.Get());
}

TEST_F(BodyLife, CellKeepsItsBody)
{
    VEXDocument& document = Open("box");
    VEXBody_var body = BodyOf(document);
    const VEXBody* const pointer = body.Get();
    const VEXFace_var face = VEXShare<VEXBaseUnknown>(Cells(body, 2)[3]);
    ASSERT_TRUE(face);
    body.Reset();
    EXPECT_EQ(face->GetDimension(), 2);
    EXPECT_EQ(BodyOf(document).Get(), pointer);
    EXPECT_TRUE(VEXShare(Cells(BodyOf(document), 2)[3]) == face);
}

TEST_F(BodyLife, DomainKeepsItsBody)
{
    VEXBody_var body = BodyOf(Open("box"));
    const VEXDomain_var domain = VEXShare(body->GetDomain(1, 0));
    body.Reset();
    const VEXCell_var cell = VEXShare(domain->GetCell(1, 0));
    ASSERT_TRUE(cell);
    EXPECT_EQ(cell->GetKind(), "solid");
}

TEST_F(BodyLife, CellAndBodyHaveOneCount)
{
    const VEXBody_var body = BodyOf(Open("box"));
    VEXCell* const cell = Cells(body, 1)[0];
    const unsigned long count = body->AddRef();
    EXPECT_EQ(cell->AddRef(), count + 1);
    EXPECT_EQ(body->Release(), count);
    EXPECT_EQ(cell->Release(), count - 1);
}

TEST_F(BodyLife, OfARemovedDocumentAnswersNothing)
{
    VEXDocument& document = Open("box");
    const VEXBody_var body = BodyOf(document);
    const VEXCell_var cell = VEXShare(Cells(body, 2)[0]);
    ASSERT_EQ(VEXDocumentServices::Remove(document, 1), S_OK);
    ExpectGone(body, cell);
}

TEST_F(BodyLife, OfAReopenedDocumentIsAnother)
{
    VEXDocument& document = Open("box");
    const VEXBody_var old = BodyOf(document);
    const VEXCell_var cell = VEXShare(Cells(old, 2)[0]);
    ASSERT_EQ(VEXDocumentServices::Remove(document, 1), S_OK);
    const VEXBody_var body = BodyOf(OpenFile(folder.File("box.VEXPart")));
    ASSERT_TRUE(body);
    EXPECT_FALSE(body == old);
    EXPECT_EQ(Cells(body, 2).size(), 6u);
    ExpectGone(old, cell);
}

TEST_F(BodyLife, EndsWhenThePartGetsAnotherGeometry)
{
    VEXDocument& document = Open("box");
    const VEXBody_var old = BodyOf(document);
    const VEXCell_var cell = VEXShare(Cells(old, 2)[0]);
    Reshape(document, Open("cylinder"));
    ExpectGone(old, cell);
    const VEXBody_var body = BodyOf(document);
    EXPECT_FALSE(body == old);
    EXPECT_EQ(Cells(body, 2).size(), 3u);
    ExpectGone(old, cell);
}

TEST_F(BodyLife, DoesNotBeginAgainWithTheFormerGeometry)
{
    VEXDocument& document = Open("box");
    const VEXBody_var old = BodyOf(document);
    const VEXCell_var cell = VEXShare(Cells(old, 2)[0]);
    const std::int64_t number = vex::GeometryNumber(Inside(document));
    Reshape(document, Open("cylinder"));
    const VEXBody_var between = BodyOf(document);
    vex::RootObject(Inside(document))->Set("Geometry", number);
    ExpectGone(old, cell);
    const VEXBody_var body = BodyOf(document);
    EXPECT_EQ(Cells(body, 2).size(), 6u);
    EXPECT_FALSE(body == old);
    EXPECT_EQ(BodyOf(document).Get(), body.Get());
}

TEST_F(BodyLife, OldBodyThatDiesLeavesTheNewOne)
{
    VEXDocument& document = Open("box");
    VEXBody_var old = BodyOf(document);
    Reshape(document, Open("cylinder"));
    const VEXBody_var body = BodyOf(document);
    old.Reset();
    EXPECT_EQ(BodyOf(document).Get(), body.Get());
}

TEST_F(BodyLife, AccountsOfWhatIsHeldNameTheBodyForItsCells)
{
    VEXDocument& document = Open("box");
    BodyOf(document);
    vex::probe::StartRecording();
    VEXFace_var face;
    {
        const VEXBody_var body = BodyOf(document);
        face = VEXShare<VEXBaseUnknown>(Cells(body, 2)[0]);
    }
    EXPECT_THAT(vex::probe::HeldObjects(),
                ElementsAre(Pair("VEXBody", 1), Pair("VEXPartDocument", 1)));
    face.Reset();
    EXPECT_THAT(vex::probe::HeldObjects(), IsEmpty());
    vex::probe::StopRecording();
}

}  // namespace
