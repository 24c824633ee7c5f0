// SPDX-License-Identifier: Apache-2.0
// Geometry of a part as regions tell it: dimension and number, and the digest of the shape within
// which the number says something.
#pragma once

#include "VEXFeatures.h"
#include "VEXProductStructure.h"
#include "host/feature/Document.h"

#include <cstdint>
#include <string>

namespace vex {

struct RegionGeometry
{
    std::int64_t dimension = 0;  ///< 0 vertex, 1 edge, 2 face, 3 body
    std::int64_t index = 0;      ///< from 1: of a body, among the part's bodies
    std::string shape;           ///< digest of the geometry's bytes (ShapeDigest)
};

/// What a region or a B-rep access stores, which may be anything.
RegionGeometry StoredGeometry(const Feature& feature);

/// "Vertex-3", "Edge-12", "Face-1", "Body-1"; "Unknown-1" of another dimension.
std::string NameOf(const RegionGeometry& geometry);

/// What a program gave as geometry of a part: a body of the part, a B-rep access, or a face, edge
/// or vertex, for which no access is made. Nothing of the part's document is changed.
/// @param document  receives the part's document, not counted
/// @return S_OK; E_INVALIDARG for an empty handle, other geometry, geometry of another part, and a
/// part whose document was never stored; E_FAIL, with file and remedy in `error`, when the geometry
/// is gone or no longer that of the part
VEX_EXPORT HRESULT DescribeGeometry(const VEXILinkableObject_var& geometry,
                                    const VEXISpecObject_var& part, Document*& document,
                                    RegionGeometry& description, std::string& error);

/// Whether a document's part has that shape at present, with this geometry in it. False with file
/// and remedy in `error`. How many cells a shape has is asked of the geometry kernel once.
bool HasGeometry(Document& part, const RegionGeometry& geometry, std::string& error);

/// The body of that number among those of the document's part; null when there is none.
Feature* BodyAt(const Document& part, std::int64_t index);

}  // namespace vex
