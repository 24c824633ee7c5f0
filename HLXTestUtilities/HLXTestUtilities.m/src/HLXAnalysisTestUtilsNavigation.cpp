// SPDX-License-Identifier: Apache-2.0
// Static navigation utilities, in the order of their header. Each message ends a line.
#include "HLXAnalysisTestUtils.h"
#include "HLXConsole.h"
#include "HLXIContainerFactoryStep.h"
#include "HLXNavigation.h"
#include "HLXProductUtilities.h"

#include <memory>

namespace {

HRESULT Fail(const char* message)
{
    HLXConsole::Print(message, "\n");
    return E_FAIL;
}

}  // namespace

HRESULT HLXAnalysisTestUtils::GetProductDocFromAnalysisDoc(VEXDocument*& document,
                                                           VEXIProduct_var& product,
                                                           VEXISamAnalysisModel_var& model)
{
    VEXISamAnalysisContainer_var container;
    VEXISamAnalysisManager_var manager;
    const char* message = nullptr;
    // A failing call's own result is not passed up; kept.
    if (FAILED(HLXNavigation::FindAnalysisManager(document, container, manager, message))) {
        return Fail(message);
    }
    VEXISamDocumentManager_var documentManager;
    if (manager && FAILED(manager->GetDocumentManager(documentManager))) {
        return Fail("Could not get document manager");
    }

    // Of both lists the entries tell, the results are not looked at; kept.
    VEXListValVEXBaseUnknown_var models;
    if (manager) manager->GetAllAnalysisModels(models);
    if (models.Size() == 0) return Fail("***ERROR No analysis models found.");
    model = models[1];
    // Nothing is done with it; the cast is kept.
    const VEXINavigateObject_var navigateObject = models[1];

    VEXListPtrVEXDocument documents;
    HLXNavigation::ListLinkedDocuments(documentManager, documents);
    if (documents.Size() == 0) return Fail("VEXAnalysis Document has no linked geometry!");
    void* roots = nullptr;
    if (documents[1] == nullptr || FAILED(documents[1]->QueryInterface(IID_VEXIDocRoots, &roots))) {
        return Fail("Could not get Root documents");
    }
    const VEXIDocRoots_var held = VEXAdopt(static_cast<VEXIDocRoots*>(roots));
    if (HLXNavigation::TakeFirstRoot(held.Get(), product) == 0) {
        Fail("Could not find a Product inside the document");
    }
    // A product that was there before is a success too; kept.
    return product ? S_OK : E_FAIL;
}

HRESULT HLXAnalysisTestUtils::GetMechPartFeatFromProductDoc(VEXIProduct_var& product,
                                                            VEXISpecObject_var& partFeature,
                                                            VEXILinkableObject_var& partLinkable,
                                                            VEXIContainer*& partContainer)
{
    VEXIDescendants_var descendants;
    if (product) {
        const std::unique_ptr<VEXListValVEXBaseUnknown_var> children(
            product->GetChildren("VEXIProduct"));
        if (children != nullptr) descendants = (*children)[1];
    }
    if (descendants == nullptr) {
        return Fail(
            "Navigation through the VEXProduct structure failed! Maybe this\n"
            "VEXAnalysis document is linked with something else than a VEXProduct.");
    }
    VEXListValVEXISpecObject_var parts;
    // The list tells, the result is not looked at; kept.
    descendants->GetAllChildren("VEXILinkableObject", parts);
    if (parts.Size() == 0) return Fail("Could not get the VEXPart");
    partLinkable = parts[1];
    const VEXDocument* const partDocument = partLinkable ? partLinkable->GetDocument() : nullptr;

    void* found = nullptr;
    const HRESULT rc = partDocument == nullptr
                           ? E_FAIL
                           : partDocument->QueryInterface(IID_VEXIContainerOfDocument, &found);
    if (FAILED(rc)) {
        Fail("Cannot find interface VEXIContainerOfDocument on VEXPart");
        return rc;
    }
    const VEXIContainerOfDocument_var containers =
        VEXAdopt(static_cast<VEXIContainerOfDocument*>(found));
    VEXIContainer* specContainer = nullptr;
    if (containers && FAILED(containers->GetSpecContainer(specContainer))) {
        return Fail("Cannot Retrieve Spec container");
    }
    // Whether there are B-rep accesses is not looked at; kept.
    if (containers) containers->GetBRepContainer(partContainer);

    const VEXIPrtContainer_var part = VEXAdopt(specContainer);
    if (part == nullptr) return Fail("Cannot get interface VEXIPrtContainer!");
    partFeature = part->GetMechanicalPart();
    return partFeature ? S_OK : Fail("Cannot get MechanicalPart feature");
}

namespace {

/// Appends the cells of one dimension, each as what it is.
template <class Handle, class Cell>
HRESULT AppendCells(const VEXBody_var& body, short dimension, VEXListPtr<Cell>& list,
                    const char* message)
{
    VEXListPtrVEXCell cells;
    // The list tells, the result is not looked at; kept.
    if (body) body->GetAllCells(cells, dimension);
    for (int i = 1; i <= cells.Size(); ++i) {
        const Handle cell = VEXShare(cells[i]);
        if (cell == nullptr) return Fail(message);
        list.Append(cell.Get());
    }
    return S_OK;
}

}  // namespace

HRESULT HLXAnalysisTestUtils::GetSupportDataFromPartFeat(VEXISpecObject_var& partFeature,
                                                         VEXListPtrVEXFace& faces,
                                                         VEXListPtrVEXEdge& edges,
                                                         VEXListPtrVEXVertex& vertices,
                                                         VEXBody_var& body)
{
    const VEXIPartRequest_var part = partFeature;
    if (part == nullptr) return Fail("Cannot get VEXIPartRequest for MechanicalPart feature");
    VEXISpecObject_var mainBody;
    // The handle tells, the result is not looked at; kept.
    part->GetMainBody("", mainBody);
    if (mainBody == nullptr) return Fail("Cannot retrieve MainBody");

    const VEXIMechanicalTool_var tool = mainBody;
    const VEXIBodyRequest_var request = tool;
    if (request == nullptr) return E_FAIL;
    VEXListValVEXBaseUnknown_var results;
    request->GetResults("MfDefault3DView", results);
    const VEXIGeometricalElement_var element = results[1];
    // A missing element or body is not reported; kept.
    body = element ? element->GetBody() : VEXBody_var();

    HRESULT rc = AppendCells<VEXFace_var>(body, 2, faces, "Cannot get a VEXFace!");
    if (SUCCEEDED(rc)) {
        rc = AppendCells<VEXEdge_var>(body, 1, edges, "Cannot get a VEXEdge!");
    }
    if (SUCCEEDED(rc)) {
        rc = AppendCells<VEXVertex_var>(body, 0, vertices, "Cannot get a VEXVertex!");
    }
    return rc;
}

namespace {

/// Puts the first feature of a late type at most three levels below the step into `container`.
bool ScanForContainer(const VEXISpecObject_var& step, const VEXUnicodeString& lateType,
                      VEXBaseUnknown_var& container)
{
    const VEXISamAnalysisScan_var scan = step;
    VEXListValVEXBaseUnknown_var found;
    // The list tells, the result is not looked at; kept.
    if (scan) scan->GetChildren(lateType, found, 3);
    if (found.Size() == 0) return false;
    container = found[1];
    return true;
}

}  // namespace

HRESULT HLXAnalysisTestUtils::GetFeatContainer(VEXUnicodeString lateType, VEXISpecObject_var step,
                                               VEXBaseUnknown_var& container)
{
    if (step == nullptr || ScanForContainer(step, lateType, container)) return S_OK;

    void* found = nullptr;
    const HRESULT rc = step->QueryInterface(IID_HLXIContainerFactoryStep, &found);
    if (FAILED(rc)) return rc;
    if (auto* const factory = static_cast<HLXIContainerFactoryStep*>(found); factory != nullptr) {
        // Whether the container was made is not looked at; kept.
        if (lateType.Compare("HLXHistoryOutputRequestContainerLT") == VEXUnicodeString::Identical) {
            factory->CreateHistoryOutputRequestContainer();
        } else if (lateType.Compare("HLXFieldOutputRequestContainerLT") ==
                   VEXUnicodeString::Identical) {
            factory->CreateFieldOutputRequestContainer();
        }
        factory->Release();
    }
    ScanForContainer(step, lateType, container);
    return S_OK;
}

HRESULT HLXAnalysisTestUtils::GetFeatureByName(VEXUnicodeString lateType,
                                               VEXUnicodeString setLateType, VEXUnicodeString name,
                                               VEXISpecObject_var& feature, VEXDocument* document)
{
    VEXListValVEXBaseUnknown_var sets;
    const HRESULT rc = HLXAnalysisDocUtils::GetAnalysisSets(sets, document, setLateType);
    if (FAILED(rc)) return rc;
    if (sets.Size() == 0) return S_FALSE;
    for (int i = 1; i <= sets.Size(); ++i) {
        const VEXISamAnalysisSet_var set = sets[i];
        VEXListValVEXBaseUnknown_var features;
        // The list tells, the result is not looked at; kept.
        if (set) set->GetAnalysisFeatures(lateType, features);
        for (int k = 1; k <= features.Size(); ++k) {
            const VEXIAlias_var alias = features[k];
            if (alias == nullptr) continue;
            const VEXUnicodeString visited = alias->GetAlias();
            HLXConsole::Print(visited, "\n");
            if (visited.Compare(name) == VEXUnicodeString::Identical) {
                feature = features[k];
                return S_OK;
            }
        }
    }
    return E_FAIL;
}
