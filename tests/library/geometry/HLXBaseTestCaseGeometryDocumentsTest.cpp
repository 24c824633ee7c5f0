// SPDX-License-Identifier: Apache-2.0
// Every operation on the way from an analysis document to the cells of a part, each as the first
// one of a test case, on documents that have little or nothing to give.
#include "library/geometry/GeometryFixture.h"

namespace hlxtest {
namespace {

/// What an operation answers, prints and appends.
struct Answer
{
    long result;
    std::string out;
    int cells = 0;

    friend bool operator==(const Answer&, const Answer&) = default;
    friend void PrintTo(const Answer& answer, std::ostream* stream)
    {
        *stream << answer.result << ", out " << testing::PrintToString(answer.out) << ", "
                << answer.cells << " cells";
    }
};

/// Those of all operations in the order in which they build on each other.
struct Answers
{
    Answer rootProduct;
    Answer partDocument, partContainers, mechanicalPart, element, brepContainer, body;
    Answer allFaces, allEdges, allVertices;        ///< after a look for the body
    Answer threeFaces, threeEdges, threeVertices;  ///< without one
};

struct DocumentRow
{
    const char* name;
    std::string (*link)(const TemporaryFolder&);  ///< path of what to link to; null for nothing
    int partIndex;
    Answers answers;

    friend void PrintTo(const DocumentRow& row, std::ostream* stream) { *stream << row.name; }
};

class GeometryDocumentTest : public WatchedGeometryTest,
                             public testing::WithParamInterface<DocumentRow>
{
protected:
    /// Runs an operation on a test case that only knows the root product.
    template <class Operation>
    Answer First(Operation operation)
    {
        ExposedTestCase fresh;
        fresh._Document = document.Get();
        fresh._PartIndex = GetParam().partIndex;
        Capture([&] { fresh.InitializeRootProduct(Manager()); });
        VEXListPtrVEXCell cells;
        const Outcome outcome = OutcomeOf([&] { return operation(fresh, cells); });
        EXPECT_EQ(outcome.err, "");
        return {outcome.result, outcome.out, cells.Size()};
    }

    template <class Operation>
    Answer AfterBody(Operation operation)
    {
        return First([&](ExposedTestCase& test, VEXListPtrVEXCell& cells) {
            test.InitializeBody();
            operation(test, cells);
            return 0L;
        });
    }

    template <class Operation>
    Answer FirstOf(Operation operation)
    {
        return First([&](ExposedTestCase& test, VEXListPtrVEXCell& cells) {
            operation(test, cells);
            return 0L;
        });
    }
};

TEST_P(GeometryDocumentTest, AnswersEachOperation)
{
    if (GetParam().link != nullptr) {
        Link(GetParam().link(folder));
    }
    const Answers& expected = GetParam().answers;
    using Case = ExposedTestCase;
    using List = VEXListPtrVEXCell;
    const auto root = [&](Case& test, List&) { return test.InitializeRootProduct(Manager()); };
    EXPECT_EQ(First(root), expected.rootProduct);
    const auto part = [](Case& test, List&) {
        VEXDocument* found = nullptr;
        const long result = test.GetPartDocument(found);
        EXPECT_EQ(found != nullptr, result == S_OK);
        return result;
    };
    EXPECT_EQ(First(part), expected.partDocument);
    EXPECT_EQ(First([](Case& test, List&) { return test.InitializeContainerOfPartDocument(); }),
              expected.partContainers);
    EXPECT_EQ(First([](Case& test, List&) { return test.InitializeMechanicalPart(); }),
              expected.mechanicalPart);
    const auto element = [](Case& test, List&) {
        VEXIGeometricalElement_var found;
        const long result = test.GetGeometricalElement(found);
        EXPECT_EQ(found != nullptr, result == S_OK);
        return result;
    };
    EXPECT_EQ(First(element), expected.element);
    const auto brepContainer = [](Case& test, List&) {
        VEXIContainer* found = nullptr;
        const long result = test.GetBRepContainer(found);
        EXPECT_EQ(found != nullptr, result == S_OK);
        const VEXIContainer_var held = VEXAdopt(found);
        return result;
    };
    EXPECT_EQ(First(brepContainer), expected.brepContainer);
    EXPECT_EQ(First([](Case& test, List&) { return test.InitializeBody(); }), expected.body);
    EXPECT_EQ(AfterBody([](Case& test, List& cells) { test.GetFaceList(cells); }),
              expected.allFaces);
    EXPECT_EQ(AfterBody([](Case& test, List& cells) { test.GetEdgeList(cells); }),
              expected.allEdges);
    EXPECT_EQ(AfterBody([](Case& test, List& cells) { test.GetVertexList(cells); }),
              expected.allVertices);
    EXPECT_EQ(
        FirstOf([](Case& test, List& cells) { test.InitializeFaceSupportByIteration(cells, 3); }),
        expected.threeFaces);
    EXPECT_EQ(
        FirstOf([](Case& test, List& cells) { test.InitializeEdgeSupportByIteration(cells, 3); }),
        expected.threeEdges);
    EXPECT_EQ(
        FirstOf([](Case& test, List& cells) { test.InitializeVertexSupportByIteration(cells, 3); }),
        expected.threeVertices);
}

// --- Documents ----------------------------------------------------------------------------------

const Answer kFine{S_OK, ""};

Answer CellCount(int cells)
{
    return {0, "", cells};
}

/// A part is there; `all` counts its faces, edges and vertices.
Answers WithPart(const int (&all)[3], Answer threeFaces, Answer threeEdges, Answer threeVertices)
{
    return {kFine,
            kFine,
            kFine,
            kFine,
            kFine,
            kFine,
            kFine,
            CellCount(all[0]),
            CellCount(all[1]),
            CellCount(all[2]),
            std::move(threeFaces),
            std::move(threeEdges),
            std::move(threeVertices)};
}

/// There is no part; `way` is what looking for it prints.
Answers WithoutPart(Answer rootProduct, const std::string& way)
{
    const Answer noMechanicalPart{E_FAIL, way + kNoMechanicalPartAtAll};
    const Answer noList{0, way + kNoMechanicalPartAtAll};
    const Answer noCells{0, way + kNoMechanicalPartAtAll + kNoBody + kNoCells};
    return {std::move(rootProduct),
            {E_FAIL, way},
            {E_FAIL, way},
            noMechanicalPart,
            noMechanicalPart,
            {E_FAIL, way + kNoBRepContainer},
            noMechanicalPart,
            noList,
            noList,
            noList,
            noCells,
            noCells,
            noCells};
}

Answers WithoutGeometry()
{
    const Answer noElement{E_FAIL, kNoLastShape};
    const Answer noList{0, kNoLastShape};
    const Answer noCells{0, kNoLastShape + kNoBody + kNoCells};
    return {kFine,  kFine,  kFine,  kFine,   noElement, kFine,  noElement,
            noList, noList, noList, noCells, noCells,   noCells};
}

const Answer kCellsMissing{0, kNoCells};

const DocumentRow rows[] = {
    {"Box", [](const TemporaryFolder& folder) { return ProductSpecimen(folder, "box"); }, 1,
     WithPart({6, 12, 8}, CellCount(3), CellCount(3), CellCount(2))},
    {"PartWithoutEdgesAndVertices",
     [](const TemporaryFolder& folder) { return ProductSpecimen(folder, "bare_sphere"); }, 1,
     WithPart({1, 0, 0}, CellCount(1), CellCount(0), kCellsMissing)},
    {"WireFrame",
     [](const TemporaryFolder& folder) { return ProductSpecimen(folder, "wire_frame"); }, 1,
     WithPart({0, 4, 5}, kCellsMissing, kCellsMissing, kCellsMissing)},
    {"Sheets", [](const TemporaryFolder& folder) { return ProductSpecimen(folder, "sheets"); }, 1,
     WithPart({7, 16, 12}, kCellsMissing, kCellsMissing, kCellsMissing)},
    {"PartWithoutGeometry",
     [](const TemporaryFolder& folder) { return ProductSpecimen(folder, "without_geometry"); }, 1,
     WithoutGeometry()},
    {"FirstOfSeveralParts", SeveralPartsSpecimen, 1,
     WithPart({6, 12, 8}, CellCount(3), CellCount(3), CellCount(2))},
    {"SecondOfSeveralParts", SeveralPartsSpecimen, 2,
     WithPart({3, 3, 2}, CellCount(3), CellCount(3), CellCount(1))},
    {"ThirdOfSeveralParts", SeveralPartsSpecimen, 3,
     WithPart({1, 2, 1}, CellCount(1), CellCount(2), CellCount(1))},
    {"PartThatIsNotThere", SeveralPartsSpecimen, 99, WithoutPart(kFine, kNoNavigation)},
    {"LinkToAPart", [](const TemporaryFolder& folder) { return PartSpecimen(folder, "box"); }, 1,
     WithoutPart(kFine, kNoNavigation)},
    {"NoLink", nullptr, 1, WithoutPart({E_FAIL, kNoLinkedGeometry}, kNoNavigation)},
    {"ProductWithoutChildren",
     [](const TemporaryFolder& folder) {
         const std::string path = folder.File("bare.VEXProduct");
         VEXDocument* product = nullptr;
         EXPECT_EQ(VEXDocumentServices::New("VEXProduct", product), S_OK);
         EXPECT_EQ(VEXDocumentServices::SaveAs(*product, path.c_str(), "", 0), S_OK);
         return path;
     },
     1, WithoutPart(kFine, kNoChildren + kNoNavigation)},
};

INSTANTIATE_TEST_SUITE_P(Of, GeometryDocumentTest, testing::ValuesIn(rows),
                         [](const testing::TestParamInfo<DocumentRow>& row) {
                             return std::string(row.param.name);
                         });

}  // namespace
}  // namespace hlxtest
