// SPDX-License-Identifier: Apache-2.0
// Faces, edges and vertices of a part's main body, without a test case.
#include "library/geometry/StaticSupportData.h"

#include <type_traits>

namespace hlxtest::statics {
namespace {

using Utils = HLXAnalysisTestUtils;

static_assert(std::is_same_v<decltype(&Utils::GetSupportDataFromPartFeat),
                             HRESULT (*)(VEXISpecObject_var&, VEXListPtrVEXFace&,
                                         VEXListPtrVEXEdge&, VEXListPtrVEXVertex&, VEXBody_var&)>);

struct Shape
{
    const char* name;
    std::vector<int> counts;  ///< of faces, edges, vertices

    friend void PrintTo(const Shape& shape, std::ostream* stream) { *stream << shape.name; }
};

class StaticShapeTest : public StaticSupportDataTest, public testing::WithParamInterface<Shape>
{};

TEST_P(StaticShapeTest, AllItsCellsAreListedWithoutAWord)
{
    Take(GetParam().name);
    EXPECT_EQ(List(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Counts(), GetParam().counts);
    ASSERT_TRUE(body);
    EXPECT_TRUE(body == PlatformBody());
    ExpectAllAtTheEnd();
}

TEST_P(StaticShapeTest, ASecondTimeTheyAreAppended)
{
    Take(GetParam().name);
    List();
    EXPECT_EQ(List(), (Outcome{S_OK, "", ""}));
    std::vector<int> twice = GetParam().counts;
    for (int& count : twice) {
        count *= 2;
    }
    EXPECT_EQ(Counts(), twice);
    for (int i = 1; i <= faces.Size() / 2; ++i) {
        EXPECT_EQ(faces[i], faces[i + faces.Size() / 2]);
    }
    ExpectAllAtTheEnd();
}

INSTANTIATE_TEST_SUITE_P(Of, StaticShapeTest,
                         testing::Values(Shape{"box", {6, 12, 8}}, Shape{"cylinder", {3, 3, 2}},
                                         Shape{"sphere", {1, 3, 2}}, Shape{"torus", {1, 2, 1}},
                                         Shape{"bare_sphere", {1, 0, 0}},
                                         Shape{"wire_frame", {0, 4, 5}},
                                         Shape{"sheets", {7, 16, 12}},
                                         Shape{"two_solids", {9, 15, 10}}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(StaticSupportDataTest, TheCellsAreReachedStepByStep)
{
    Take("torus");
    EXPECT_EQ(
        CallsOf([&] { Utils::GetSupportDataFromPartFeat(part, faces, edges, vertices, body); }),
        (std::vector<std::string>{
            "cast:VEXPart->VEXIPartRequest(&)",
            "VEXIPartRequest::GetMainBody(\"\", &)",
            "cast:VEXMechanicalTool->VEXIMechanicalTool(&)",
            "cast:VEXMechanicalTool->VEXIBodyRequest(&)",
            "VEXIBodyRequest::GetResults(\"MfDefault3DView\", &)",
            "cast:VEXImportedShape->VEXIGeometricalElement(&)",
            "VEXIGeometricalElement::GetBody()",
            "VEXBody::GetAllCells(&, 2)",
            "cast:VEXFaceCell->VEXFace(&)",
            "VEXBody::GetAllCells(&, 1)",
            "cast:VEXEdgeCell->VEXEdge(&)",
            "cast:VEXEdgeCell->VEXEdge(&)",
            "VEXBody::GetAllCells(&, 0)",
            "cast:VEXVertexCell->VEXVertex(&)",
        }));
}

TEST_F(StaticSupportDataTest, NothingButTheBodyIsHeld)
{
    Take("box");
    VEXBody_var platformBody;
    const HeldCounts withBody = HeldAfter([&] { platformBody = PlatformBody(); });
    ASSERT_EQ(withBody.at("VEXBody"), 1);
    platformBody.Reset();
    const unsigned long held = References(*part.Get());
    EXPECT_EQ(
        HeldAfter(
            "",
            [&] { return Utils::GetSupportDataFromPartFeat(part, faces, edges, vertices, body); }),
        withBody);
    EXPECT_EQ(References(*body.Get()), 1U);
    EXPECT_EQ(References(*part.Get()), held);
}

TEST_F(StaticSupportDataTest, TheCellsLiveWithTheBody)
{
    Take("box");
    ASSERT_EQ(List(), (Outcome{S_OK, "", ""}));
    part.Reset();
    EXPECT_EQ(faces[6]->GetKind(), VEXUnicodeString("plane"));
    EXPECT_EQ(edges[12]->GetKind(), VEXUnicodeString("line"));
    EXPECT_EQ(vertices[8]->GetKind(), VEXUnicodeString("vertex"));
}

TEST_F(StaticSupportDataTest, CellsOfAnotherPartAreAppendedAndItsBodyTakesTheFormersPlace)
{
    Take("cylinder");
    List();
    const VEXBody_var cylinder = body;
    Take("box");
    EXPECT_EQ(List(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Counts(), (std::vector<int>{3 + 6, 3 + 12, 2 + 8}));
    EXPECT_EQ(faces[1]->GetKind(), VEXUnicodeString("cylinder"));
    EXPECT_TRUE(body == PlatformBody());
    EXPECT_FALSE(body == cylinder);
    ExpectAllAtTheEnd();
}

TEST_F(StaticSupportDataTest, TheFirstPartOfAnAssemblyIsFoundAndListedInARow)
{
    Link(SeveralPartsSpecimen(folder));
    VEXIProduct_var product;
    VEXISamAnalysisModel_var model;
    VEXILinkableObject_var link;
    VEXIContainer* container = nullptr;
    EXPECT_EQ(OutcomeOf([&] {
                  return Utils::GetProductDocFromAnalysisDoc(analysis.Get(), product, model);
              }),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(OutcomeOf([&] {
                  return Utils::GetMechPartFeatFromProductDoc(product, part, link, container);
              }),
              (Outcome{S_OK, "", ""}));
    EXPECT_EQ(List(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Counts(), (std::vector<int>{6, 12, 8}));
    container->Release();
}

TEST_F(StaticSupportDataTest, APartWithoutGeometryHasNothing)
{
    Take("without_geometry");
    EXPECT_EQ(List(), (Outcome{S_OK, "", ""}));
    EXPECT_EQ(Counts(), (std::vector<int>{0, 0, 0}));
    EXPECT_FALSE(body);
}

}  // namespace
}  // namespace hlxtest::statics
