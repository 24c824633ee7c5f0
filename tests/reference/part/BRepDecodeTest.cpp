// SPDX-License-Identifier: Apache-2.0
// From cells to accesses.
#include "PartFixture.h"
#include "VEXProductStructure.h"

namespace {

class BRepDecode : public hlxtest::PartTest
{
protected:
    static VEXIBRepAccess_var Decode(VEXDocument& document, const VEXBody_var& body, VEXCell* cell)
    {
        return VEXBRepDecode(AccessesOf(document), VEXShare(cell), body);
    }
    static int Count(VEXDocument& document)
    {
        return AccessesOf(document)->GetMemberCount("VEXIBRepAccess");
    }
};

TEST_F(BRepDecode, MakesOneAccessForEachFaceEdgeAndVertex)
{
    VEXDocument& document = Open("cylinder");
    const VEXBody_var body = BodyOf(document);
    for (short dimension = 0; dimension <= 2; ++dimension) {
        for (VEXCell* const pointer : Cells(body, dimension)) {
            const VEXIBRepAccess_var access = Decode(document, body, pointer);
            ASSERT_TRUE(access);
            VEXCell_var cell;
            VEXBody_var found;
            EXPECT_EQ(access->GetCell(cell, found), S_OK);
            EXPECT_EQ(cell.Get(), pointer);
            EXPECT_EQ(found.Get(), body.Get());
        }
    }
    EXPECT_EQ(Count(document), 2 + 3 + 3);
}

TEST_F(BRepDecode, GivesTheSameAccessEachTime)
{
    VEXDocument& document = Open("box");
    const VEXBody_var body = BodyOf(document);
    const VEXIBRepAccess_var first = Decode(document, body, Cells(body, 2)[4]);
    EXPECT_TRUE(first == Decode(document, body, Cells(body, 2)[4]));
    EXPECT_FALSE(first == Decode(document, body, Cells(body, 2)[3]));
    EXPECT_FALSE(first == Decode(document, body, Cells(body, 1)[4]));
    EXPECT_EQ(Count(document), 3);
}

TEST_F(BRepDecode, FindsAccessesThatAnotherBodyMade)
{
    VEXDocument& document = Open("box");
    VEXBody_var body = BodyOf(document);
    const VEXIBRepAccess_var first = Decode(document, body, Cells(body, 2)[4]);
    body.Reset();
    const VEXBody_var later = BodyOf(document);
    EXPECT_TRUE(first == Decode(document, later, Cells(later, 2)[4]));
}

TEST_F(BRepDecode, MakesAnAccessAnewThatWasDeletedOrChanged)
{
    VEXDocument& document = Open("box");
    const VEXBody_var body = BodyOf(document);
    VEXCell* const cell = Cells(body, 2)[4];
    const auto feature = [&](const VEXIBRepAccess_var& access) {
        return static_cast<vex::Feature*>(access->GetImpl());
    };
    const VEXIBRepAccess_var first = Decode(document, body, cell);
    Inside(document).Tree().Delete(*feature(first));
    const VEXIBRepAccess_var second = Decode(document, body, cell);
    ASSERT_TRUE(second);
    EXPECT_FALSE(first == second);
    feature(second)->Set("Index", std::int64_t{1});
    const VEXIBRepAccess_var third = Decode(document, body, cell);
    EXPECT_FALSE(third == second);
    VEXCell_var found;
    VEXBody_var foundBody;
    ASSERT_EQ(third->GetCell(found, foundBody), S_OK);
    EXPECT_EQ(found.Get(), cell);
    EXPECT_EQ(first->GetCell(found, foundBody), E_FAIL);
    EXPECT_FALSE(found);
    EXPECT_FALSE(foundBody);
}

TEST_F(BRepDecode, RefusesOtherContainers)
{
    VEXDocument& document = Open("box");
    VEXDocument& other = Open("cylinder");
    const VEXBody_var body = BodyOf(document);
    const VEXCell_var face = VEXShare(Cells(body, 2)[0]);
    const VEXIContainerOfDocument_var containers = VEXShare<VEXBaseUnknown>(&document);
    VEXIContainer* features = nullptr;
    ASSERT_EQ(containers->GetSpecContainer(features), S_OK);
    EXPECT_FALSE(VEXBRepDecode(VEXAdopt(features), face, body));
    EXPECT_FALSE(VEXBRepDecode(AccessesOf(other), face, body));
    EXPECT_FALSE(VEXBRepDecode(VEXIContainer_var(), face, body));
    EXPECT_EQ(Count(document) + Count(other), 0);
}

TEST_F(BRepDecode, RefusesCellsOfOtherBodiesAndVolumes)
{
    VEXDocument& document = Open("box");
    const VEXBody_var body = BodyOf(document);
    const VEXBody_var other = BodyOf(Open("cylinder"));
    EXPECT_FALSE(Decode(document, body, Cells(other, 2)[0]));
    EXPECT_FALSE(Decode(document, other, Cells(body, 2)[0]));
    EXPECT_FALSE(Decode(document, body, Cells(body, 3)[0]));
    EXPECT_FALSE(Decode(document, body, nullptr));
    EXPECT_FALSE(Decode(document, VEXBody_var(), Cells(body, 2)[0]));
    EXPECT_EQ(Count(document), 0);
}

TEST_F(BRepDecode, RefusesABodyThatIsGone)
{
    VEXDocument& document = Open("box");
    const VEXBody_var body = BodyOf(document);
    const VEXCell_var face = VEXShare(Cells(body, 2)[0]);
    Reshape(document, Open("cylinder"));
    EXPECT_FALSE(VEXBRepDecode(AccessesOf(document), face, body));
    const VEXIContainer_var accesses = AccessesOf(document);
    ASSERT_EQ(VEXDocumentServices::Remove(document, 1), S_OK);
    EXPECT_FALSE(VEXBRepDecode(accesses, face, body));
}

TEST_F(BRepDecode, GivesWhatCanBeLinkedTo)
{
    VEXDocument& document = Open("box");
    const VEXBody_var body = BodyOf(document);
    const VEXILinkableObject_var access = Decode(document, body, Cells(body, 0)[0]);
    ASSERT_TRUE(access);
    EXPECT_EQ(access->GetDocument(), &document);
}

}  // namespace
