// SPDX-License-Identifier: Apache-2.0
// Geometry of stored supports: the same again, or a refusal by name. What is stored may be
// anything.
#include "reference/analysis/EntityFixture.h"

#include "host/part/Region.h"

#include <filesystem>
#include <limits>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class StoredSupport : public hlxtest::EntityTest
{
protected:
    /// Why the geometry of a support is refused.
    static std::string Refusal(const vex::Feature& support)
    {
        const auto face = vex::FaceOf<VEXISamSupport>(&support);
        const hlxtest::Captured told = hlxtest::Capture([&] {
            VEXILinkableObject_var geometry(vex::FaceOf<VEXILinkableObject>(
                vex::RootObject(*vex::DocumentSession::Instance().Documents().back())));
            EXPECT_EQ(face->GetGeometry(geometry), E_FAIL);
            EXPECT_FALSE(geometry);
        });
        EXPECT_THAT(told.out, IsEmpty());
        std::string error;
        EXPECT_EQ(vex::ResolveRegion(support, error), nullptr);
        EXPECT_EQ(told.err, "vex: " + error + "\n");
        return told.err;
    }

    VEXDocument& Box() { return *Session().Find(folder.File("box.VEXPart"))->AsVEXDocument(); }
    static vex::DocumentSession& Session() { return vex::DocumentSession::Instance(); }
    void CloseBox() { ASSERT_EQ(VEXDocumentServices::Remove(Box(), 1), S_OK); }
};

TEST_F(StoredSupport, OpensThePartWhenItIsClosed)
{
    const vex::Feature& support = SupportOnBox();
    CloseBox();
    VEXILinkableObject_var geometry;
    ASSERT_EQ(vex::FaceOf<VEXISamSupport>(&support)->GetGeometry(geometry), S_OK);
    EXPECT_EQ(geometry->GetDocument(), &Box());
    EXPECT_FALSE(Inside(Box()).IsOfProgram());
    // It goes with the document that it was opened for.
    geometry.Reset();
    RemoveAnalysis();
    EXPECT_THAT(Session().Documents(), IsEmpty());
}

TEST_F(StoredSupport, KeepsThePartThatItIsOf)
{
    SupportOnBox();
    EXPECT_EQ(VEXDocumentServices::Remove(Box(), 0), E_FAIL);
    EXPECT_TRUE(Inside(Box()).IsOpen());
}

TEST_F(StoredSupport, OfAnotherShapeIsRefusedByName)
{
    analysis.SaveAs(folder.File("a.VEXAnalysis"));
    const vex::Feature& support = SupportOnBox();
    Reshape(Box(), Open("cylinder"));
    EXPECT_THAT(Refusal(support),
                AllOf(StartsWith("vex: '" + folder.File("a.VEXAnalysis") + "': VEXSamSupport " +
                                 std::to_string(support.Id()) + ", Face-1: '" +
                                 folder.File("box.VEXPart") + "': its shape is not the one"),
                      HasSubstr("Select the geometry again in the present shape.")));
}

TEST_F(StoredSupport, OfTheSameShapeImportedAgainIsFound)
{
    const vex::Feature& support = SupportOnBox();
    const std::string copy = folder.File("copy.VEXPart");
    hlxtest::WriteFile(copy, hlxtest::ReadFile(folder.File("box.VEXPart")));
    Reshape(Box(), OpenFile(copy));
    VEXILinkableObject_var geometry;
    EXPECT_EQ(vex::FaceOf<VEXISamSupport>(&support)->GetGeometry(geometry), S_OK);
}

TEST_F(StoredSupport, OfAPartThatIsNotThereIsRefusedByName)
{
    const vex::Feature& support = SupportOnBox();
    CloseBox();
    std::filesystem::rename(folder.File("box.VEXPart"), folder.File("moved.VEXPart"));
    EXPECT_THAT(Refusal(support), HasSubstr(folder.File("box.VEXPart")));
    std::filesystem::rename(folder.File("moved.VEXPart"), folder.File("box.VEXPart"));
    VEXILinkableObject_var geometry;
    EXPECT_EQ(vex::FaceOf<VEXISamSupport>(&support)->GetGeometry(geometry), S_OK);
}

TEST_F(StoredSupport, OfADocumentThatIsNoPartIsRefused)
{
    vex::Feature& support = SupportOnBox();
    const std::string product = ProductSpecimen(folder, "cylinder");
    support.Set("Document", vex::Boxed<vex::DocumentLink>(vex::DocumentLink{product, {}}));
    EXPECT_THAT(Refusal(support), HasSubstr("it holds no part"));
    support.Set("Document",
                vex::Boxed<vex::DocumentLink>(vex::DocumentLink{product, vex::DocumentType::Part}));
    EXPECT_THAT(Refusal(support), HasSubstr("type VEXProduct"));
    support.Set("Document", vex::Boxed<vex::DocumentLink>());
    EXPECT_THAT(Refusal(support), HasSubstr("it is of no part. Select its geometry again."));
}

TEST_F(StoredSupport, OfAPartWithoutGeometryIsRefused)
{
    const vex::Feature& support = SupportOnBox();
    vex::RootObject(Inside(Box()))->Set("Geometry", std::int64_t{0});
    EXPECT_THAT(Refusal(support), HasSubstr("the part has no geometry"));
    vex::RootObject(Inside(Box()))->Set("Geometry", std::int64_t{77});
    EXPECT_THAT(Refusal(support), HasSubstr("no geometry of number 77"));
}

TEST_F(StoredSupport, WithoutAContainerOfAccessesIsRefused)
{
    const vex::Feature& support = SupportOnBox();
    Inside(Box()).Tree().Delete(*Inside(Box()).BRepContainer());
    VEXILinkableObject_var geometry;
    EXPECT_THAT(hlxtest::StandardErrorOf([&] {
                    EXPECT_EQ(vex::FaceOf<VEXISamSupport>(&support)->GetGeometry(geometry), E_FAIL);
                }),
                AllOf(HasSubstr("Face-1: "), HasSubstr("no container of B-rep accesses")));
}

TEST_F(StoredSupport, WithNumbersThatNameNothingIsRefused)
{
    constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    struct Row
    {
        std::int64_t dimension;
        std::int64_t index;
        const char* name;
    };
    const Row rows[] = {{2, 0, "Face-0"},
                        {2, 7, "Face-7"},
                        {2, -1, "Face--1"},
                        {2, most, "Face-9223372036854775807"},
                        {2, least, "Face--9223372036854775808"},
                        {1, 13, "Edge-13"},
                        {0, 9, "Vertex-9"},
                        {3, 2, "Body-2"},
                        {3, 0, "Body-0"},
                        {3, least, "Body--9223372036854775808"},
                        {4, 1, "Unknown-1"},
                        {-1, 1, "Unknown-1"},
                        {least, 1, "Unknown-1"},
                        {most, most, "Unknown-9223372036854775807"},
                        {4294967298, 1, "Unknown-1"},
                        {2, 4294967297, "Face-4294967297"}};
    vex::Feature& support = SupportOnBox();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        support.Set("Dimension", row.dimension);
        support.Set("Index", row.index);
        EXPECT_EQ(vex::RegionName(support), row.name);
        EXPECT_THAT(Refusal(support),
                    AllOf(HasSubstr(std::string(", ") + row.name + ": "),
                          HasSubstr(std::string("has no ") + row.name + ". Select")));
    }
}

TEST_F(StoredSupport, WithADamagedDigestIsRefused)
{
    vex::Feature& support = SupportOnBox();
    for (const char* const digest : {"", "0", "ffffffffffffffffffffffffffffffff", "größer\n"}) {
        support.Set("Shape", vex::Boxed<std::string>(digest));
        EXPECT_THAT(Refusal(support), HasSubstr("its shape is not the one")) << digest;
    }
}

TEST_F(StoredSupport, ThatIsGoneAnswersNothing)
{
    const auto support = vex::FaceOf<VEXISamSupport>(&SupportOnBox());
    RemoveAnalysis();
    VEXILinkableObject_var geometry(MainBodyOf(Box()));
    EXPECT_EQ(hlxtest::OutcomeOf([&] { return support->GetGeometry(geometry); }),
              (hlxtest::Outcome{E_FAIL, "", ""}));
    EXPECT_FALSE(geometry);
    EXPECT_TRUE(support->GetConnectorKind().IsEmpty());
    std::string error;
    const auto& gone = static_cast<const vex::Feature&>(*support->GetImpl());
    EXPECT_EQ(vex::ResolveRegion(gone, error), nullptr);
    EXPECT_THAT(error, StartsWith("the region is gone"));
    EXPECT_EQ(vex::RegionName(gone), "Vertex-0");
}

}  // namespace
