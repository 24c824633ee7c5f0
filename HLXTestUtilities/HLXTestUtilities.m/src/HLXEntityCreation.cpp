// SPDX-License-Identifier: Apache-2.0
// What creating one load or condition has in common with creating another.
#include "HLXEntityCreation.h"

#include "HLXAnalysisTestUtils.h"
#include "HLXConsole.h"

void HLXEntityCreation::SetAlias(const VEXISpecObject_var& feature, const VEXUnicodeString& name)
{
    const VEXIAlias_var alias = feature;
    if (alias) alias->SetAlias(name);
}

VEXISamAnalysisSupport_var HLXEntityCreation::SupportOf(const VEXISpecObject_var& created)
{
    // Nothing is done with the entity; the cast is kept.
    const VEXISamAnalysisEntity_var entity = created;
    return created;
}

HRESULT HLXEntityCreation::MakeAmplitude(VEXDocument* document, VEXISpecObject_var& amplitude)
{
    const HRESULT rc = HLXAnalysisTestUtils::CreateTabularAmplitude(document, off, amplitude);
    return FAILED(rc) ? E_FAIL : S_OK;
}

HRESULT HLXEntityCreation::SupportOnBody(VEXDocument* document,
                                         const VEXISamAnalysisSupport_var& support,
                                         const char* message)
{
    HLXPartSupport::Part part;
    if (FAILED(HLXPartSupport::FindPart(document, part))) return E_FAIL;
    const VEXILinkableObject_var body = HLXPartSupport::FindBody(part);
    if (body == nullptr) return E_FAIL;
    const HRESULT rc = HLXPartSupport::Add(support, body, part, smartConnector);
    return FAILED(rc) ? HLXConsole::Fail(message) : S_OK;
}

HRESULT HLXEntityCreation::SupportOnFace(HLXPartSupport::Part& part,
                                         const VEXISamAnalysisSupport_var& support,
                                         const char* message)
{
    HLXPartSupport::Cells cells;
    if (FAILED(HLXPartSupport::FindCells(part, cells))) return E_FAIL;
    const VEXILinkableObject_var face =
        HLXPartSupport::Decode(part, VEXShare(cells.faces[1]), cells);
    if (face == nullptr) return E_FAIL;
    const HRESULT rc = HLXPartSupport::Add(support, face, part, smartConnector);
    return FAILED(rc) ? HLXConsole::Fail(message) : S_OK;
}

HRESULT HLXEntityCreation::SupportOnVertex(HLXPartSupport::Part& part,
                                           const VEXISamAnalysisSupport_var& support)
{
    HLXPartSupport::Cells cells;
    if (FAILED(HLXPartSupport::FindCells(part, cells))) return E_FAIL;
    const VEXILinkableObject_var vertex =
        HLXPartSupport::Decode(part, VEXShare(cells.vertices[1]), cells);
    if (vertex == nullptr) return E_FAIL;
    const HRESULT rc = HLXPartSupport::Add(support, vertex, part, nullptr);
    return FAILED(rc) ? HLXConsole::FailOnStandardError(" Failed to add support 1") : S_OK;
}

VEXILinkableObject_var HLXEntityCreation::LinkableFace(const VEXIBRepAccess_var& face)
{
    VEXILinkableObject_var linkable = face;
    if (linkable == nullptr) HLXConsole::Print("Could not get VEXILinkable for face!\n");
    return linkable;
}

HRESULT HLXEntityCreation::FindLinkableFace(VEXDocument* document, HLXPartSupport::Part& part,
                                            HLXPartSupport::Cells& cells,
                                            VEXILinkableObject_var& face)
{
    if (FAILED(HLXPartSupport::FindPart(document, part)) ||
        FAILED(HLXPartSupport::FindCells(part, cells))) {
        return E_FAIL;
    }
    face = LinkableFace(HLXPartSupport::Decode(part, VEXShare(cells.faces[1]), cells));
    return face == nullptr ? E_FAIL : S_OK;
}
