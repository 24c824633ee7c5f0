// SPDX-License-Identifier: Apache-2.0
// Product structure as features. A product document holds one root node; each use of a part or
// product below it is a node that links to the document of what is used. A part document holds one
// part feature.
#pragma once

#include "host/feature/Document.h"

#include <string>
#include <vector>

namespace vex {

inline constexpr const char* productNodeType = "VEXProductNode";
inline constexpr const char* partType = "VEXPart";
inline constexpr const char* mechanicalToolType = "VEXMechanicalTool";
inline constexpr const char* importedShapeType = "VEXImportedShape";

/// What a new product document holds: the container with the root node, and the container of B-rep
/// accesses.
VEX_EXPORT void MakeProductStructure(Document& document);

/// What a new part document holds: the container with the part, which has a main body, and the
/// container of B-rep accesses.
VEX_EXPORT void MakePartStructure(Document& document);

/// The first body of a part, made when it has none.
VEX_EXPORT Feature& MainBody(Feature& part);

/// The one node or part that stands directly in the document's container; null for an analysis
/// document and an empty one.
VEX_EXPORT Feature* RootObject(const Document& document);

/// The part that stands in the container of a part document, the first of several; null when there
/// is none.
VEX_EXPORT Feature* PartOf(const Document& document);

/// Opens the document that a node links to if it is not open yet. Null without an error for a node
/// that links to none and for other features; null with the reason in `error` when it cannot be
/// opened or is neither product nor part.
VEX_EXPORT Document* LinkedDocument(const Feature& node, std::string& error);

/// What stands below an object in the product structure: its own children, then what the document
/// it links to holds. The root node of a linked product is the product that the linking node is a
/// use of: its children take its place. False, with the reason in `error`, when the linked document
/// cannot be opened.
VEX_EXPORT bool StructureBelow(const Feature& object, std::vector<Feature*>& below,
                               std::string& error);

/// Everything below an object, each before what is below it. A linked document is entered once,
/// however often it is used: its objects are the same ones each time. So documents that link to
/// each other in a circle end too. Errors as StructureBelow.
VEX_EXPORT bool AllBelow(Feature& object, std::vector<Feature*>& below, std::string& error);

}  // namespace vex
