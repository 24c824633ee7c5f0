// SPDX-License-Identifier: Apache-2.0
// HLXBaseTestCase: the way from the analysis document to the part that it is linked to, and to the
// cells of the part's body. No message has an end of line, and "endl" in one is text; both kept.
#include "HLXBaseTestCase.h"

#include "HLXConsole.h"
#include "HLXNavigation.h"

#include <memory>
#include <string>

long HLXBaseTestCase::InitializeRootProduct(VEXISamAnalysisManager_var manager)
{
    VEXISamDocumentManager_var documentManager;
    long rc = manager ? manager->GetDocumentManager(documentManager) : S_OK;
    if (FAILED(rc)) {
        HLXConsole::Print("***ERROR Could not get document manager");
        return rc;
    }
    VEXListPtrVEXDocument documents;
    rc = HLXNavigation::ListLinkedDocuments(documentManager, documents);
    if (FAILED(rc) || documents.Size() == 0) {
        HLXConsole::Print("***ERROR VEXAnalysis Document has no linked geometry!");
        return E_FAIL;
    }
    if (documents[1] == nullptr) {
        HLXConsole::Print("***ERROR Analysis document is invalid");
        return E_FAIL;
    }
    void* roots = nullptr;
    rc = documents[1]->QueryInterface(IID_VEXIDocRoots, &roots);
    if (FAILED(rc)) {
        HLXConsole::Print("Could not get Root documents");
        return rc;
    }
    const VEXIDocRoots_var held = VEXAdopt(static_cast<VEXIDocRoots*>(roots));
    if (HLXNavigation::TakeFirstRoot(held.Get(), _RootProduct) != 0) return rc;
    HLXConsole::Print("Could not find a Product inside the document");
    return E_FAIL;
}

long HLXBaseTestCase::GetPartDocument(VEXDocument*& partDocument)
{
    bool hasChildren = false;
    if (_RootProduct) {
        const std::unique_ptr<VEXListValVEXBaseUnknown_var> children(GetChildren());
        hasChildren = children != nullptr && children->Size() > 0;
        if (hasChildren) {
            // An index outside the list gives an empty handle, reported below; kept.
            _PartLink = (*children)[_PartIndex];
        } else {
            HLXConsole::Print("Found no children");
        }
    }
    const VEXIDescendants_var descendants = _PartLink;
    if (descendants == nullptr) {
        const std::string blanks(60, ' ');
        HLXConsole::Print("Navigation through the VEXProduct structure failed!", blanks,
                          "Maybe this\n VEXAnalysis document is linked with", blanks,
                          "something else than a VEXProduct.endl");
        return E_FAIL;
    }
    // The link that an earlier call left does not help; kept.
    if (!hasChildren) return E_FAIL;

    VEXListValVEXISpecObject_var parts;
    // The list tells, the result is not looked at; kept.
    descendants->GetAllChildren("VEXILinkableObject", parts);
    if (parts.Size() == 0) {
        HLXConsole::Print("Could not get the VEXPart");
        return E_FAIL;
    }
    const VEXILinkableObject_var part = parts[1];
    partDocument = part ? part->GetDocument() : nullptr;
    if (partDocument == nullptr) {
        HLXConsole::Print("Part Document not found");
        return E_FAIL;
    }
    return S_OK;
}

long HLXBaseTestCase::FindPartDocContainer(const VEXDocument& partDocument)
{
    void* container = nullptr;
    const long rc = partDocument.QueryInterface(IID_VEXIContainerOfDocument, &container);
    if (_PartDocContainer != nullptr) _PartDocContainer->Release();
    _PartDocContainer = static_cast<VEXIContainerOfDocument*>(container);
    if (FAILED(rc)) {
        HLXConsole::Print("Cannot find interface VEXIContainerOfDocument on VEXPart");
    }
    return rc;
}

long HLXBaseTestCase::InitializeContainerOfPartDocument()
{
    VEXDocument* partDocument = nullptr;
    const long rc = GetPartDocument(partDocument);
    return FAILED(rc) ? rc : FindPartDocContainer(*partDocument);
}

long HLXBaseTestCase::InitializeMechanicalPart()
{
    // No failure ends this early: what can still be said is said; kept.
    long rc = InitializeContainerOfPartDocument();

    VEXIContainer* specContainer = nullptr;
    const long found =
        _PartDocContainer == nullptr ? E_FAIL : _PartDocContainer->GetSpecContainer(specContainer);
    if (FAILED(found) || specContainer == nullptr) {
        HLXConsole::Print("Cannot Retrieve Spec container for the part");
        rc = E_FAIL;
    }
    const VEXIPrtContainer_var partContainer = VEXAdopt(specContainer);
    if (partContainer == nullptr) {
        HLXConsole::Print("Cannot get interface VEXIPrtContainer!");
        rc = E_FAIL;
    } else {
        _MechanicalPart = partContainer->GetMechanicalPart();
    }
    if (_MechanicalPart) return rc;
    HLXConsole::Print("Cannot get MechanicalPart feature");
    return E_FAIL;
}

long HLXBaseTestCase::GetGeometricalElement(VEXIGeometricalElement_var& element)
{
    if (_MechanicalPart == nullptr) {
        const long rc = InitializeMechanicalPart();
        if (FAILED(rc)) return rc;
    }
    const VEXIPartRequest_var part = _MechanicalPart;
    if (part == nullptr) {
        return LogError("Cannot get VEXIPartRequest for MechanicalPart feature");
    }
    VEXISpecObject_var mainBody;
    // The handle tells, the result is not looked at; kept.
    part->GetMainBody("", mainBody);
    if (mainBody == nullptr) return LogError("Cannot retrieve MainBody");
    const VEXIMechanicalTool_var tool = mainBody;
    if (tool == nullptr) return LogError("Cannot get VEXIMechanicalTool");
    const VEXISpecObject_var shaped = tool->GetLastShapedObject();
    if (shaped == nullptr) return LogError("Could not get last shaped Object");
    element = shaped;
    return element ? S_OK : LogError("Could not get the Geometrical Element");
}

long HLXBaseTestCase::GetBRepContainer(VEXIContainer*& container)
{
    long rc = InitializeContainerOfPartDocument();
    if (SUCCEEDED(rc) && _PartDocContainer != nullptr) {
        rc = _PartDocContainer->GetBRepContainer(container);
    }
    if (FAILED(rc)) HLXConsole::Print("Could not get container for bReps.");
    return rc;
}

long HLXBaseTestCase::InitializeBody()
{
    VEXIGeometricalElement_var element;
    const long rc = GetGeometricalElement(element);
    if (FAILED(rc)) return rc;
    _Body = element->GetBody();
    return _Body ? rc : LogError("Cannot get the Body!");
}

// The body is not initialised by these three; kept.
void HLXBaseTestCase::GetFaceList(VEXListPtrVEXCell& cells)
{
    if (_Body) _Body->GetAllCells(cells, 2);
}

void HLXBaseTestCase::GetEdgeList(VEXListPtrVEXCell& cells)
{
    if (_Body) _Body->GetAllCells(cells, 1);
}

void HLXBaseTestCase::GetVertexList(VEXListPtrVEXCell& cells)
{
    if (_Body) _Body->GetAllCells(cells, 0);
}

void HLXBaseTestCase::InitializeFaceSupportByIteration(VEXListPtrVEXCell& cells, int count)
{
    GetCellsOfDimension(cells, count, 2);
}

void HLXBaseTestCase::InitializeEdgeSupportByIteration(VEXListPtrVEXCell& cells, int count)
{
    GetCellsOfDimension(cells, count, 1);
}

void HLXBaseTestCase::InitializeVertexSupportByIteration(VEXListPtrVEXCell& cells, int count)
{
    GetCellsOfDimension(cells, count, 0);
}

namespace {

using IteratorHolder = std::unique_ptr<VEXBoundedCellsIterator>;

/// Appends a cell and those that follow it, `count` in all, less when the iterator ends before. One
/// is taken for a count below 1 too; kept.
void AppendCells(VEXListPtrVEXCell& cells, VEXCell* cell, VEXBoundedCellsIterator& following,
                 int count)
{
    for (int taken = 1; cell != nullptr; ++taken) {
        cells.Append(cell);
        if (taken >= count) break;
        cell = following.Next();
    }
}

}  // namespace

void HLXBaseTestCase::GetCellsOfDimension(VEXListPtrVEXCell& cells, int count, int dimension)
{
    if (_Body == nullptr) {
        VEXIGeometricalElement_var element;
        GetGeometricalElement(element);
        if (element) _Body = element->GetBody();
        if (_Body == nullptr) HLXConsole::Print("Cannot get the Body!");
    }
    const VEXDomain* const domain = _Body ? _Body->GetDomain(1, 0) : nullptr;
    const VEXCell* const volume = domain == nullptr ? nullptr : domain->GetCell(1, 0);
    IteratorHolder faces(volume == nullptr ? nullptr : volume->CreateBoundedCellsIterator());
    if (faces == nullptr) {
        HLXConsole::Print("Cannot get the cells of the body!");
        return;
    }
    faces->Initialize();
    VEXCell* face = faces->Next();
    if (dimension < 2) {
        faces.reset();
        GetLowerCell(cells, face, count, dimension + 1);
        return;
    }
    AppendCells(cells, face, *faces, count);
}

void HLXBaseTestCase::GetLowerCell(VEXListPtrVEXCell& cells, VEXCell*& cell, int count, int level)
{
    for (; cell != nullptr; ++level) {
        const IteratorHolder lower(cell->CreateBoundedCellsIterator());
        if (lower == nullptr) break;
        lower->Initialize();
        cell = lower->Next();
        if (level >= 2) {
            AppendCells(cells, cell, *lower, count);
            return;
        }
    }
    HLXConsole::Print("Cannot get the cells of the body!");
}
