// SPDX-License-Identifier: Apache-2.0
// Describes geometry and finds out whether a part has it.
#include "host/part/RegionGeometry.h"

#include "host/feature/FeatureSearch.h"
#include "host/part/BRepAccesses.h"
#include "host/part/Body.h"
#include "host/product/ProductStructure.h"
#include "host/system/MessageTexts.h"

#include <array>
#include <unordered_map>
#include <utility>

namespace vex {

namespace {

using CellCounts = std::array<std::size_t, 3>;  ///< by dimension, of vertices, edges and faces

/// How many cells a part's shape has. The same digest tells the same shape: it is looked at once,
/// however many regions are of it. Null with file and remedy in `error`.
const CellCounts* CountsOf(Document& part, const std::string& digest, std::string& error)
{
    static auto& known = *new std::unordered_map<std::string, CellCounts>;
    const auto found = known.find(digest);
    if (found != known.end()) {
        return &found->second;
    }
    const BodyHolder body = Body::Of(part, error);
    if (body == nullptr) {
        return nullptr;
    }
    CellCounts counts{};
    for (int dimension = 0; dimension <= 2; ++dimension) {
        counts[static_cast<std::size_t>(dimension)] = body->Shape().CellCount(dimension);
    }
    return &known.emplace(digest, counts).first->second;
}

RegionGeometry DescribeCell(const Cell& cell)
{
    return {cell.Dimension(), static_cast<std::int64_t>(cell.Index()),
            cell.OwnBody().ShapeDigest()};
}

/// An access never is to a body.
RegionGeometry DescribeAccess(const Feature& access)
{
    RegionGeometry description = StoredGeometry(access);
    if (description.dimension == 3) {
        description.dimension = -1;
    }
    return description;
}

/// Of the shape that the part has at present; of none when it has none.
RegionGeometry DescribeBody(const Feature& body, Document& part)
{
    RegionGeometry description{3, 0, {}};
    for (const Feature* const child : body.Parent()->Children()) {
        description.index += child->Kind().IsKindOf(mechanicalToolType) ? 1 : 0;
        if (child == &body) {
            break;
        }
    }
    std::string error;
    if (const std::string* const digest = ShapeDigest(part, error)) {
        description.shape = *digest;
    }
    return description;
}

constexpr const char* goneGeometry =
    "the geometry is gone: its document was removed, or the part has another shape now. Select "
    "the geometry again in the present shape.";

}  // namespace

RegionGeometry StoredGeometry(const Feature& feature)
{
    return {feature.GetAs<std::int64_t>("Dimension"), feature.GetAs<std::int64_t>("Index"),
            feature.GetAs<std::string>("Shape")};
}

std::string NameOf(const RegionGeometry& geometry)
{
    constexpr const char* names[] = {"Vertex", "Edge", "Face", "Body"};
    const bool isKnown = geometry.dimension >= 0 && geometry.dimension <= 3;
    return std::string(isKnown ? names[geometry.dimension] : "Unknown") + "-" +
           std::to_string(geometry.index);
}

Feature* BodyAt(const Document& part, std::int64_t index)
{
    const Feature* const owner = PartOf(part);
    if (owner == nullptr || index < 1) {
        return nullptr;
    }
    for (Feature* const child : owner->Children()) {
        if (child->Kind().IsKindOf(mechanicalToolType) && --index == 0) {
            return child;
        }
    }
    return nullptr;
}

bool HasGeometry(Document& part, const RegionGeometry& geometry, std::string& error)
{
    const std::string* const digest = ShapeDigest(part, error);
    if (digest == nullptr) {
        return false;
    }
    if (geometry.shape != *digest) {
        error = system::Quoted(part.Path()) +
                ": its shape is not the one that the geometry was taken from. Select the geometry "
                "again in the present shape.";
        return false;
    }
    bool isThere = geometry.dimension == 3 && BodyAt(part, geometry.index) != nullptr;
    if (geometry.dimension >= 0 && geometry.dimension <= 2) {
        const CellCounts* const counts = CountsOf(part, *digest, error);
        if (counts == nullptr) {
            return false;
        }
        isThere = geometry.index >= 1 &&
                  std::cmp_less_equal(geometry.index,
                                      (*counts)[static_cast<std::size_t>(geometry.dimension)]);
    }
    if (!isThere) {
        error = system::Quoted(part.Path()) + ": its shape has no " + NameOf(geometry) +
                ". Select the geometry again.";
    }
    return isThere;
}

HRESULT DescribeGeometry(const VEXILinkableObject_var& geometry, const VEXISpecObject_var& part,
                         Document*& document, RegionGeometry& description, std::string& error)
{
    const auto* const cell = ComponentBehind<Cell>(geometry.Get());
    const auto* const feature = ComponentBehind<Feature>(geometry.Get());
    if (!part || (cell == nullptr && feature == nullptr)) {
        return E_INVALIDARG;
    }
    if (cell != nullptr ? cell->OwnBody().IsGone() : feature->Tree() == nullptr) {
        error = goneGeometry;
        return E_FAIL;
    }
    const Feature* const owner = FeatureBehind(part.Get());
    Document& found = cell != nullptr ? cell->OwnBody().Part() : feature->Tree()->Owner();
    if (owner == nullptr || owner != PartOf(found) || found.DocType() != DocumentType::Part ||
        found.Path().empty()) {
        return E_INVALIDARG;
    }
    if (cell != nullptr && cell->Dimension() <= 2) {
        description = DescribeCell(*cell);
    } else if (feature != nullptr && feature->Kind().IsKindOf(brepAccessType) &&
               feature->Target("Part") == owner) {
        description = DescribeAccess(*feature);
    } else if (feature != nullptr && feature->Kind().IsKindOf(mechanicalToolType) &&
               feature->Parent() == owner) {
        description = DescribeBody(*feature, found);
    } else {
        return E_INVALIDARG;
    }
    document = &found;
    return HasGeometry(found, description, error) ? S_OK : E_FAIL;
}

}  // namespace vex
