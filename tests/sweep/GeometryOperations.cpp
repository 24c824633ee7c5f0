// SPDX-License-Identifier: Apache-2.0
// The way of a test case from its document to the product, a part of it, its body and cells.
#include "sweep/Sweep.h"

namespace hlxtest::sweep {

namespace {

using Cells = VEXListPtrVEXCell;

long FindRootProduct(World& w)
{
    VEXISamAnalysisManager_var manager;
    const long result = w.test.GetAnalysisManager(manager);
    return SUCCEEDED(result) ? w.test.InitializeRootProduct(manager) : result;
}

long FindPartDocument(World& w)
{
    VEXDocument* part = nullptr;
    return w.test.GetPartDocument(part);
}

long FindPartBeyondTheLast(World& w)
{
    w.test._PartIndex = 2;
    return Refused(FindPartDocument(w));
}

long FindElement(World& w)
{
    VEXIGeometricalElement_var element;
    return w.test.GetGeometricalElement(element);
}

long FindBRepContainer(World& w)
{
    VEXIContainer* container = nullptr;
    const long result = w.test.GetBRepContainer(container);
    if (container != nullptr) {
        container->Release();
    }
    return result;
}

using CellOperation = void (HLXBaseTestCase::*)(Cells&);
using CountedCellOperation = void (HLXBaseTestCase::*)(Cells&, int);

/// What an operation that fills a list answers: a list never holds a null.
long Checked(const Cells& cells, long result)
{
    for (int i = 1; i <= cells.Size(); ++i) {
        if (cells[i] == nullptr) {
            ADD_FAILURE() << "a null among the cells";
        }
    }
    return result;
}

/// Lists all cells of the body.
template <CellOperation operation>
long List(World& w)
{
    const long result = w.test.InitializeBody();
    Cells cells;
    (w.test.*operation)(cells);
    return Checked(cells, result);
}

/// Takes three cells.
template <CountedCellOperation operation>
long Take(World& w)
{
    Cells cells;
    (w.test.*operation)(cells, 3);
    return Checked(cells, S_OK);
}

const Operation operations[] = {
    {"InitializeRootProduct", 1, &World::Open, FindRootProduct},
    {"GetPartDocument", 1, &World::FindProduct, FindPartDocument},
    {"GetPartDocumentBeyondTheLast", 1, &World::FindProduct, FindPartBeyondTheLast},
    {"InitializeContainerOfPartDocument", 1, &World::FindProduct,
     [](World& w) { return w.test.InitializeContainerOfPartDocument(); }},
    {"InitializeMechanicalPart", 1, &World::FindProduct,
     [](World& w) { return w.test.InitializeMechanicalPart(); }},
    {"GetGeometricalElement", 1, &World::FindProduct, FindElement},
    {"GetBRepContainer", 1, &World::FindProduct, FindBRepContainer},
    {"InitializeBody", 1, &World::FindProduct, [](World& w) { return w.test.InitializeBody(); }},
    {"GetFaceList", 1, &World::FindPart, List<&ExposedTestCase::GetFaceList>},
    {"GetEdgeList", 1, &World::FindPart, List<&ExposedTestCase::GetEdgeList>},
    {"GetVertexList", 1, &World::FindPart, List<&ExposedTestCase::GetVertexList>},
    {"InitializeFaceSupportByIteration", 1, &World::FindPart,
     Take<&ExposedTestCase::InitializeFaceSupportByIteration>},
    {"InitializeEdgeSupportByIteration", 1, &World::FindPart,
     Take<&ExposedTestCase::InitializeEdgeSupportByIteration>},
    {"InitializeVertexSupportByIteration", 1, &World::FindPart,
     Take<&ExposedTestCase::InitializeVertexSupportByIteration>},
};

INSTANTIATE_TEST_SUITE_P(Geometry, Sweep, testing::ValuesIn(operations), NameOfRow);

}  // namespace

}  // namespace hlxtest::sweep
