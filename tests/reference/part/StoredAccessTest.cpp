// SPDX-License-Identifier: Apache-2.0
// Accesses to cells that were stored: the same cell again, or a refusal that says why.
#include "PartFixture.h"
#include "host/part/BRepAccesses.h"
#include "support/Capture.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <utility>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class StoredAccess : public hlxtest::PartTest
{
protected:
    /// Takes an access to a face of the box; answers the document.
    VEXDocument& Take(std::size_t face)
    {
        VEXDocument& document = Open("box");
        const VEXBody_var body = BodyOf(document);
        EXPECT_TRUE(VEXBRepDecode(AccessesOf(document), VEXShare(Cells(body, 2)[face]), body));
        return document;
    }

    static VEXIBRepAccess_var First(VEXDocument& document)
    {
        const std::unique_ptr<VEXListValVEXBaseUnknown_var> members(
            AccessesOf(document)->ListMembers("VEXIBRepAccess"));
        return VEXIBRepAccess_var((*members)[1]);
    }

    static vex::Feature& FeatureOf(VEXDocument& document)
    {
        return *Inside(document).BRepContainer()->Children().front();
    }

    /// Stores the document and opens it again.
    VEXDocument& Reopen(VEXDocument& document)
    {
        EXPECT_EQ(VEXDocumentServices::Save(document), S_OK);
        EXPECT_EQ(VEXDocumentServices::Remove(document, 1), S_OK);
        return OpenFile(folder.File("box.VEXPart"));
    }

    /// Why the first access is refused.
    static std::string Refusal(VEXDocument& document)
    {
        const hlxtest::Captured captured = hlxtest::Capture([&] {
            VEXBody_var body;
            VEXCell_var cell;
            EXPECT_EQ(First(document)->GetCell(cell, body), E_FAIL);
            EXPECT_FALSE(cell);
            EXPECT_FALSE(body);
        });
        EXPECT_THAT(captured.out, IsEmpty());
        return captured.err;
    }
};

TEST_F(StoredAccess, FindsItsCellAgainAfterReopening)
{
    for (const std::size_t face : {0u, 2u, 5u}) {
        VEXDocument& document = Reopen(Take(face));
        VEXCell_var cell;
        VEXBody_var body;
        ASSERT_EQ(First(document)->GetCell(cell, body), S_OK);
        EXPECT_EQ(cell.Get(), Cells(body, 2)[face]);
        EXPECT_EQ(body.Get(), BodyOf(document).Get());
        EXPECT_TRUE(VEXBRepDecode(AccessesOf(document), cell, body) == First(document));
        EXPECT_EQ(AccessesOf(document)->GetMemberCount("VEXIBRepAccess"), 1);
        ASSERT_EQ(VEXDocumentServices::Remove(document, 1), S_OK);
    }
}

TEST_F(StoredAccess, OfAnotherShapeIsRefused)
{
    VEXDocument& document = Take(2);
    Reshape(document, Open("cylinder"));
    VEXDocument& reopened = Reopen(document);
    EXPECT_THAT(Refusal(reopened),
                AllOf(StartsWith("vex: '" + folder.File("box.VEXPart") + "': B-rep access "),
                      HasSubstr("another shape"), HasSubstr("Select the cell again")));
    const VEXBody_var body = BodyOf(reopened);
    EXPECT_FALSE(VEXBRepDecode(AccessesOf(reopened), VEXShare(Cells(body, 2)[2]), body) ==
                 First(reopened));
}

TEST_F(StoredAccess, OfTheSameShapeImportedAgainFindsItsCell)
{
    VEXDocument& document = Take(2);
    const std::string copy = folder.File("copy.VEXPart");
    hlxtest::WriteFile(copy, hlxtest::ReadFile(folder.File("box.VEXPart")));
    Reshape(document, OpenFile(copy));
    VEXCell_var cell;
    VEXBody_var body;
    ASSERT_EQ(First(document)->GetCell(cell, body), S_OK);
    EXPECT_EQ(cell.Get(), Cells(body, 2)[2]);
}

TEST_F(StoredAccess, WithNumbersThatNameNoCellIsRefused)
{
    constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    const std::pair<std::int64_t, std::int64_t> places[] = {
        {2, 0},     {2, 7},    {2, -1},         {2, least},      {2, most},
        {1, 13},    {0, 9},    {3, 1},          {4, 1},          {-1, 1},
        {least, 1}, {most, 1}, {4294967298, 1}, {2, 4294967297}, {most, least}};
    for (const auto& [dimension, index] : places) {
        SCOPED_TRACE(testing::Message() << dimension << ", " << index);
        VEXDocument& document = Take(2);
        ASSERT_EQ(FeatureOf(document).Set("Dimension", dimension), S_OK);
        ASSERT_EQ(FeatureOf(document).Set("Index", index), S_OK);
        VEXDocument& reopened = Reopen(document);
        EXPECT_THAT(Refusal(reopened),
                    AllOf(HasSubstr("has no cell " + std::to_string(index) + " of dimension " +
                                    std::to_string(dimension)),
                          HasSubstr("box.VEXPart")));
        const VEXBody_var body = BodyOf(reopened);
        EXPECT_TRUE(VEXBRepDecode(AccessesOf(reopened), VEXShare(Cells(body, 2)[2]), body));
        ASSERT_EQ(VEXDocumentServices::Remove(reopened, 1), S_OK);
    }
}

TEST_F(StoredAccess, WithoutItsPartIsRefused)
{
    VEXDocument& document = Take(2);
    vex::Feature& access = FeatureOf(document);
    ASSERT_EQ(access.Set("Part", vex::Reference{}), S_OK);
    EXPECT_THAT(Refusal(document), HasSubstr("no longer has the part"));
    ASSERT_EQ(access.Set("Part", vex::Reference{access.Id()}), S_OK);
    EXPECT_THAT(Refusal(document), HasSubstr("no longer has the part"));
}

TEST_F(StoredAccess, WithADamagedDigestIsRefused)
{
    for (const char* const digest : {"", "0", "ffffffffffffffffffffffffffffffff", "größer\n"}) {
        VEXDocument& document = Take(2);
        ASSERT_EQ(FeatureOf(document).Set("Shape", vex::Boxed<std::string>(digest)), S_OK);
        EXPECT_THAT(Refusal(document), HasSubstr("another shape")) << digest;
        ASSERT_EQ(VEXDocumentServices::Remove(document, 1), S_OK);
    }
}

TEST_F(StoredAccess, OfAPartWithoutGeometryIsRefused)
{
    VEXDocument& document = Take(2);
    vex::RootObject(Inside(document))->Set("Geometry", std::int64_t{-5});
    EXPECT_THAT(Refusal(document), HasSubstr("the part has no geometry"));
}

TEST_F(StoredAccess, InADocumentWithoutAPartIsRefused)
{
    for (const char* const type : {"VEXProduct", "VEXAnalysis"}) {
        SCOPED_TRACE(type);
        VEXDocument* document = nullptr;
        ASSERT_EQ(VEXDocumentServices::New(type, document), S_OK);
        vex::FeatureTree& tree = Inside(*document).Tree();
        vex::Feature* const container = Inside(*document).BRepContainer();
        ASSERT_NE(container, nullptr);
        const auto make = [&](const char* lateType) -> vex::Feature& {
            return tree.Create(vex::LateTypes::Instance().Require(lateType), container);
        };
        vex::Feature& access = make(vex::brepAccessType);
        EXPECT_THAT(Refusal(*document), HasSubstr("no longer has the part"));
        access.Set("Part",
                   vex::Reference{Inside(*document).SpecContainer()->Children().front()->Id()});
        EXPECT_THAT(Refusal(*document),
                    testing::AnyOf(HasSubstr("it holds no part"), HasSubstr("no longer has")));
        const VEXIGeometricalElement_var element =
            VEXShare<VEXBaseUnknown>(&make(vex::importedShapeType));
        const hlxtest::Captured shape = hlxtest::Capture([&] { EXPECT_FALSE(element->GetBody()); });
        EXPECT_THAT(shape.err, HasSubstr("it holds no part"));
        EXPECT_THAT(shape.out, IsEmpty());
    }
}

TEST_F(StoredAccess, OfARemovedDocumentAnswersNothing)
{
    VEXDocument& document = Take(2);
    const VEXIBRepAccess_var access = First(document);
    ASSERT_EQ(VEXDocumentServices::Remove(document, 1), S_OK);
    VEXCell_var cell;
    VEXBody_var body;
    EXPECT_EQ(access->GetCell(cell, body), E_FAIL);
}

}  // namespace
