// SPDX-License-Identifier: Apache-2.0
// Regions: geometry of a part as a feature of another document stores it. A region tells the part
// by its document and the geometry by dimension, index and the digest of the part's shape, so that
// it outlives the part's document being closed unsaved, and after the shape has changed is
// unresolved rather than other geometry.
#pragma once

#include "VEXProductStructure.h"
#include "host/feature/Document.h"
#include "host/feature/Feature.h"

#include <string>

namespace vex {

struct RegionGeometry;

/// The late type that regions extend: attributes Document, Dimension (3: a body), Index, Shape.
inline constexpr const char* regionType = "VEXSamRegion";

/// Makes a region one of that geometry of a stored part document. @return as Feature::Set
VEX_EXPORT HRESULT SetRegion(Feature& region, const Document& part, const RegionGeometry& geometry);

/// What a region is called within its part: "Vertex-3", "Edge-12", "Face-1", "Body-1"; "Unknown-1"
/// of no such dimension. What a stored region holds may be anything: never fails.
VEX_EXPORT std::string RegionName(const Feature& region);

/// The document of the region's part, opened when it is not open yet, if the part still has the
/// shape that the region was taken from and this geometry in it. Null with file, place and remedy
/// in `error`. Reads the geometry's bytes; the geometry kernel is not loaded for it unless an index
/// is to be checked that it alone knows.
VEX_EXPORT Document* ResolveRegion(const Feature& region, std::string& error);

/// The geometry of a region: the body, or the B-rep access to the cell, made in the part's document
/// when it is not there yet. Empty with the reason in `error`, as ResolveRegion.
VEX_EXPORT VEXILinkableObject_var FindGeometry(const Feature& region, std::string& error);

}  // namespace vex
