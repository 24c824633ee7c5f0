// SPDX-License-Identifier: Apache-2.0
// What creating a load or condition does besides its own values: find the part, choose geometry of
// it, add that as the support. Nothing is printed but what navigation prints.
#pragma once

#include "VEXAnalysisModel.h"
#include "VEXEntities.h"
#include "VEXMechanicalPart.h"

namespace HLXPartSupport {

/// The part that the analysis of a document is made on. Releases what it holds.
struct Part
{
    VEXISamAnalysisModel_var model;
    VEXISpecObject_var feature;       ///< the mechanical part
    VEXILinkableObject_var linkable;  ///< the part as the target of links
    VEXIContainer_var brepContainer;  ///< of the part's document
};

/// The cells of the part's main body; the body owns them.
struct Cells
{
    VEXListPtrVEXFace faces;
    VEXListPtrVEXEdge edges;
    VEXListPtrVEXVertex vertices;
    VEXBody_var body;
};

/// From the analysis document to the part. @return S_OK when there is one; else E_FAIL
HRESULT FindPart(VEXDocument* document, Part& part);

/// The cells of the part. @return S_OK when there are faces, edges and vertices; else E_FAIL
HRESULT FindCells(Part& part, Cells& cells);

/// The part's main body as the target of links; empty when there is none.
VEXILinkableObject_var FindBody(const Part& part);

/// A cell as an access that links to it can be stored with; empty when it cannot be had.
VEXIBRepAccess_var Decode(const Part& part, const VEXCell_var& cell, const Cells& cells);

/// Adds geometry of the part as a support. @return the platform's result; E_FAIL for an empty
/// handle
HRESULT Add(const VEXISamAnalysisSupport_var& support, const VEXILinkableObject_var& geometry,
            const Part& part, const char* connectorKind);

}  // namespace HLXPartSupport
