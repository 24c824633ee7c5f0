// SPDX-License-Identifier: Apache-2.0
// The way from an analysis document to the geometry that loads and conditions are put on.
#include "HLXPartSupport.h"

#include "HLXAnalysisTestUtils.h"

HRESULT HLXPartSupport::FindPart(VEXDocument* document, Part& part)
{
    VEXIProduct_var product;
    if (FAILED(HLXAnalysisTestUtils::GetProductDocFromAnalysisDoc(document, product, part.model)) ||
        product == nullptr) {
        return E_FAIL;
    }
    VEXIContainer* container = nullptr;
    const HRESULT rc = HLXAnalysisTestUtils::GetMechPartFeatFromProductDoc(
        product, part.feature, part.linkable, container);
    part.brepContainer = VEXAdopt(container);
    return FAILED(rc) || part.feature == nullptr ? E_FAIL : S_OK;
}

HRESULT HLXPartSupport::FindCells(Part& part, Cells& cells)
{
    const HRESULT rc = HLXAnalysisTestUtils::GetSupportDataFromPartFeat(
        part.feature, cells.faces, cells.edges, cells.vertices, cells.body);
    // All three are asked for, whatever the caller needs; kept.
    const bool isWhole = cells.faces.Size() > 0 && cells.edges.Size() > 0 &&
                         cells.vertices.Size() > 0 && cells.body != nullptr;
    return FAILED(rc) || !isWhole ? E_FAIL : S_OK;
}

VEXILinkableObject_var HLXPartSupport::FindBody(const Part& part)
{
    const VEXIPartRequest_var request = part.feature;
    VEXISpecObject_var body;
    // The handle tells, the result is not looked at; kept.
    if (request) request->GetMainBody("MfDefault3DView", body);
    return body;
}

VEXIBRepAccess_var HLXPartSupport::Decode(const Part& part, const VEXCell_var& cell,
                                          const Cells& cells)
{
    return VEXBRepDecode(part.brepContainer, cell, cells.body);
}

HRESULT HLXPartSupport::Add(const VEXISamAnalysisSupport_var& support,
                            const VEXILinkableObject_var& geometry, const Part& part,
                            const char* connectorKind)
{
    return support ? support->AddSupport(geometry, part.linkable, connectorKind) : E_FAIL;
}
