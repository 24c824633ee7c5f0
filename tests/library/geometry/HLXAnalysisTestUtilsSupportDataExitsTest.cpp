// SPDX-License-Identifier: Apache-2.0
// Every exit on the way from a mechanical part to the cells of its body: result, message, which
// cells were appended by then, what is held.
#include "library/geometry/StaticSupportData.h"

namespace hlxtest::statics {
namespace {

constexpr const char* noRequest = "Cannot get VEXIPartRequest for MechanicalPart feature\n";
constexpr const char* noMainBody = "Cannot retrieve MainBody\n";
constexpr const char* noFace = "Cannot get a VEXFace!\n";
constexpr const char* noEdge = "Cannot get a VEXEdge!\n";
constexpr const char* noVertex = "Cannot get a VEXVertex!\n";

struct CellsExit : Exit
{
    std::vector<int> counts;  ///< faces, edges, vertices of a box that are listed
    bool givesBody;

    friend void PrintTo(const CellsExit& row, std::ostream* stream) { *stream << row.faults; }
};

class StaticSupportDataExitTest : public StaticSupportDataTest,
                                  public testing::WithParamInterface<CellsExit>
{};

TEST_P(StaticSupportDataExitTest, ReportsALineAndLeavesNothingHeld)
{
    Take("box");
    EXPECT_EQ(List(GetParam().faults), (Outcome{GetParam().result, GetParam().out, ""}));
    EXPECT_EQ(Counts(), GetParam().counts);
    EXPECT_EQ(static_cast<bool>(body), GetParam().givesBody);
    body.Reset();
    EXPECT_EQ(HeldAfter(GetParam().faults,
                        [&] {
                            VEXBody_var forgotten;
                            return HLXAnalysisTestUtils::GetSupportDataFromPartFeat(
                                part, faces, edges, vertices, forgotten);
                        }),
              HeldCounts{});
}

const std::vector<int> none{0, 0, 0};
const std::vector<int> all{6, 12, 8};

INSTANTIATE_TEST_SUITE_P(
    Of, StaticSupportDataExitTest,
    testing::Values(
        CellsExit{{"NoRequest", "cast:VEXPart->VEXIPartRequest=E_NOINTERFACE", E_FAIL, noRequest},
                  none,
                  false},
        CellsExit{
            {"EmptyRequest", "cast:VEXPart->VEXIPartRequest=null", E_FAIL, noRequest}, none, false},
        CellsExit{
            {"NoMainBody", "VEXIPartRequest::GetMainBody=null", E_FAIL, noMainBody}, none, false},
        CellsExit{
            {"NoTool", "cast:VEXMechanicalTool->VEXIMechanicalTool=E_NOINTERFACE", E_FAIL, ""},
            none,
            false},
        CellsExit{{"EmptyTool", "cast:VEXMechanicalTool->VEXIMechanicalTool=null", E_FAIL, ""},
                  none,
                  false},
        CellsExit{
            {"NoBodyRequest", "cast:VEXMechanicalTool->VEXIBodyRequest=E_NOINTERFACE", E_FAIL, ""},
            none,
            false},
        CellsExit{{"EmptyBodyRequest", "cast:VEXMechanicalTool->VEXIBodyRequest=null", E_FAIL, ""},
                  none,
                  false},
        CellsExit{{"FailingResults", "VEXIBodyRequest::GetResults=E_ACCESSDENIED", S_OK, ""},
                  none,
                  false},
        CellsExit{{"EmptyResults", "VEXIBodyRequest::GetResults=empty", S_OK, ""}, none, false},
        CellsExit{{"FailingResultsThoughGiven", "VEXIBodyRequest::GetResults=E_UNEXPECTED,keep",
                   S_OK, ""},
                  all,
                  true},
        CellsExit{
            {"NoElement", "cast:VEXImportedShape->VEXIGeometricalElement=E_NOINTERFACE", S_OK, ""},
            none,
            false},
        CellsExit{{"NoBody", "VEXIGeometricalElement::GetBody=null", S_OK, ""}, none, false},
        CellsExit{{"NoFaces", "VEXBody::GetAllCells#1=empty", S_OK, ""}, {0, 12, 8}, true},
        CellsExit{
            {"FailingFaces", "VEXBody::GetAllCells#1=E_ACCESSDENIED", S_OK, ""}, {0, 12, 8}, true},
        CellsExit{
            {"FailingEdges", "VEXBody::GetAllCells#2=E_ACCESSDENIED", S_OK, ""}, {6, 0, 8}, true},
        CellsExit{{"FailingVertices", "VEXBody::GetAllCells#3=E_ACCESSDENIED", S_OK, ""},
                  {6, 12, 0},
                  true},
        CellsExit{{"FailingCellsThoughGiven", "VEXBody::GetAllCells=E_UNEXPECTED,keep", S_OK, ""},
                  all,
                  true},
        CellsExit{{"NoFirstFace", "cast:VEXFaceCell->VEXFace#1=E_NOINTERFACE", E_FAIL, noFace},
                  none,
                  true},
        CellsExit{{"NoThirdFace", "cast:VEXFaceCell->VEXFace#3=E_NOINTERFACE", E_FAIL, noFace},
                  {2, 0, 0},
                  true},
        CellsExit{
            {"EmptyLastFace", "cast:VEXFaceCell->VEXFace#6=null", E_FAIL, noFace}, {5, 0, 0}, true},
        CellsExit{{"NoFirstEdge", "cast:VEXEdgeCell->VEXEdge#1=E_NOINTERFACE", E_FAIL, noEdge},
                  {6, 0, 0},
                  true},
        CellsExit{{"EmptyLastEdge", "cast:VEXEdgeCell->VEXEdge#12=null", E_FAIL, noEdge},
                  {6, 11, 0},
                  true},
        CellsExit{
            {"NoFirstVertex", "cast:VEXVertexCell->VEXVertex#1=E_NOINTERFACE", E_FAIL, noVertex},
            {6, 12, 0},
            true},
        CellsExit{{"EmptyLastVertex", "cast:VEXVertexCell->VEXVertex#8=null", E_FAIL, noVertex},
                  {6, 12, 7},
                  true}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(StaticSupportDataTest, AnEmptyFeatureAndOneThatIsNoPartHaveNoRequest)
{
    EXPECT_EQ(List(), (Outcome{E_FAIL, noRequest, ""}));
    part = RootOf(New("VEXProduct"));
    ASSERT_TRUE(part);
    EXPECT_EQ(List(), (Outcome{E_FAIL, noRequest, ""}));
    EXPECT_EQ(Counts(), none);
}

TEST_F(StaticSupportDataTest, APartWhoseDocumentIsGoneHasNoMainBody)
{
    VEXDocument* const document = Open(PartSpecimen(folder, "box"));
    part = RootOf(document);
    Forget(document);
    EXPECT_EQ(List(), (Outcome{E_FAIL, noMainBody, ""}));
    EXPECT_EQ(Counts(), none);
}

TEST_F(StaticSupportDataTest, AFailureOnTheWayKeepsWhatWasThere)
{
    Take("box");
    ASSERT_EQ(List(), (Outcome{S_OK, "", ""}));
    const VEXBody_var former = body;
    for (const char* const faults :
         {"cast:VEXPart->VEXIPartRequest=E_NOINTERFACE", "VEXIPartRequest::GetMainBody=null",
          "cast:VEXMechanicalTool->VEXIMechanicalTool=E_NOINTERFACE",
          "cast:VEXMechanicalTool->VEXIBodyRequest=E_NOINTERFACE"}) {
        EXPECT_EQ(List(faults).result, E_FAIL) << faults;
        EXPECT_EQ(Counts(), all) << faults;
        EXPECT_TRUE(body == former) << faults;
    }
}

TEST_F(StaticSupportDataTest, ABodyThatIsNoneTakesTheFormersPlace)
{
    Take("box");
    ASSERT_EQ(List(), (Outcome{S_OK, "", ""}));
    for (const char* const faults :
         {"VEXIGeometricalElement::GetBody=null", "VEXIBodyRequest::GetResults=empty",
          "cast:VEXImportedShape->VEXIGeometricalElement=E_NOINTERFACE"}) {
        const VEXBody_var former = body;
        EXPECT_EQ(List(faults), (Outcome{S_OK, "", ""})) << faults;
        EXPECT_FALSE(body) << faults;
        EXPECT_EQ(Counts(), all) << faults;
        body = former;
    }
}

}  // namespace
}  // namespace hlxtest::statics
