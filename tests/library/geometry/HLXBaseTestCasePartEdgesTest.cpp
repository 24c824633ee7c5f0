// SPDX-License-Identifier: Apache-2.0
// Parts in unusual places and states, and results that are no failure but not S_OK either.
#include "host/product/PartGeometry.h"
#include "host/product/ProductStructure.h"
#include "library/geometry/GeometryFixture.h"

namespace hlxtest {
namespace {

class PartEdgesTest : public WatchedGeometryTest
{
protected:
    /// Stores a product whose only child uses another document; answers its path.
    std::string ProductUsing(const std::string& path)
    {
        VEXDocument* product = nullptr;
        EXPECT_EQ(VEXDocumentServices::New("VEXProduct", product), S_OK);
        vex::Feature& root = *vex::RootObject(*vex::Document::From(product));
        vex::Feature& node = root.Tree()->Create(root.Kind(), &root);
        node.SetAlias("only");
        node.Set("Document", vex::Boxed<vex::DocumentLink>(vex::DocumentLink{path}));
        const std::string stored = folder.File("top.VEXProduct");
        EXPECT_EQ(VEXDocumentServices::SaveAs(*product, stored.c_str(), "", 0), S_OK);
        return stored;
    }

    VEXDocument* part = nullptr;
};

TEST_F(PartEdgesTest, DocumentOfASubassemblyIsThatOfTheFirstObjectBelow)
{
    BeginWith(ProductUsing(SeveralPartsSpecimen(folder)));
    EXPECT_EQ(OutcomeOf([&] { return testCase.GetPartDocument(part); }), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(NameOf(part), "several.VEXProduct");
    EXPECT_EQ(AliasOf(testCase._PartLink), "only");
}

TEST_F(PartEdgesTest, SubassemblyHasContainersButNoMechanicalPart)
{
    BeginWith(ProductUsing(SeveralPartsSpecimen(folder)));
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeContainerOfPartDocument(); }),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeBody(); }),
              (Outcome{E_FAIL, kNoPrtContainer + kNoMechanicalPart, ""}));
    EXPECT_EQ(testCase._Body, nullptr);
}

TEST_F(PartEdgesTest, ProductThatIsGoneHasNoChildren)
{
    BeginWithProduct("box");
    ASSERT_EQ(VEXDocumentServices::Remove(*Open(folder.File("box.VEXProduct")), 1), S_OK);
    EXPECT_EQ(OutcomeOf([&] { return testCase.GetPartDocument(part); }),
              (Outcome{E_FAIL, kNoChildren + kNoNavigation, ""}));
    EXPECT_EQ(part, nullptr);
}

TEST_F(PartEdgesTest, PartThatLostItsGeometryHasAnElementWithoutABody)
{
    BeginWithProduct("box");
    const std::string path = folder.File("box.VEXPart");
    vex::RootObject(*vex::Document::From(Open(path)))->Set("Geometry", std::int64_t{0});
    const std::string reason =
        "vex: '" + path + "': the part has no geometry. Import one from a STEP file.\n";
    EXPECT_EQ(OutcomeOf([&] { return testCase.InitializeBody(); }),
              (Outcome{E_FAIL, kNoBody, reason}));
    EXPECT_EQ(testCase._Body, nullptr);
    VEXListPtrVEXCell cells;
    EXPECT_EQ(OutcomeOf([&] { testCase.InitializeVertexSupportByIteration(cells, 1); }),
              (Outcome{0, kNoBody + kNoCells, reason}));
    EXPECT_EQ(cells.Size(), 0);
}

TEST_F(PartEdgesTest, ElementIsThatOfTheLastShape)
{
    BeginWithProduct("box");
    vex::Document& inside = *vex::Document::From(Open(folder.File("box.VEXPart")));
    vex::Document& torus = *vex::Document::From(Open(PartSpecimen(folder, "torus")));
    std::span<const std::byte> bytes;
    std::string error;
    ASSERT_TRUE(
        torus.Geometry(static_cast<std::uint64_t>(vex::GeometryNumber(torus)), bytes, error))
        << error;
    ASSERT_TRUE(vex::GiveGeometry(inside, {bytes.begin(), bytes.end()}));
    ASSERT_EQ(testCase.InitializeBody(), S_OK);
    VEXListPtrVEXCell cells;
    testCase.GetEdgeList(cells);
    EXPECT_EQ(cells.Size(), 2);
}

// --- Positive results ---------------------------------------------------------------------------

class PositiveResultTest : public PartEdgesTest, public testing::WithParamInterface<GeometryExit>
{};

TEST_P(PositiveResultTest, LeadsOnToTheElementAndTheBody)
{
    BeginWithProduct("box");
    VEXIGeometricalElement_var element;
    EXPECT_EQ(RunWith(GetParam().faults, [&] { return testCase.GetGeometricalElement(element); }),
              (Outcome{S_OK, "", ""}));
    EXPECT_NE(element, nullptr);
    testCase._MechanicalPart = nullptr;
    EXPECT_EQ(RunWith(GetParam().faults, [&] { return testCase.InitializeBody(); }),
              (Outcome{S_OK, "", ""}));
    EXPECT_NE(testCase._Body, nullptr);
}

TEST_P(PositiveResultTest, LeadsOnToTheContainerOfBRepAccesses)
{
    BeginWithProduct("box");
    VEXIContainer* container = nullptr;
    const Outcome outcome =
        RunWith(GetParam().faults, [&] { return testCase.GetBRepContainer(container); });
    EXPECT_GE(outcome.result, 0);
    EXPECT_EQ(outcome.out + outcome.err, "");
    ASSERT_NE(container, nullptr);
    container->Release();
}

INSTANTIATE_TEST_SUITE_P(
    Of, PositiveResultTest,
    testing::Values(
        GeometryExit{"Link", "cast:VEXProductNode->VEXILinkableObject=S_FALSE,keep", S_OK, ""},
        GeometryExit{"Descendants", "VEXIDescendants::GetAllChildren=S_FALSE,keep", S_OK, ""},
        GeometryExit{"Query", "cast:VEXPartDocument->VEXIContainerOfDocument=S_FALSE,keep", S_OK,
                     ""},
        GeometryExit{"Features", "VEXIContainerOfDocument::GetSpecContainer=S_FALSE,keep", S_OK,
                     ""}),
    NameOfExit);

}  // namespace
}  // namespace hlxtest
