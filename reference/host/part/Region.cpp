// SPDX-License-Identifier: Apache-2.0
// Regions to and from their attributes. What a stored region holds may be anything.
#include "host/part/Region.h"

#include "host/feature/DocumentSession.h"
#include "host/part/BRepAccesses.h"
#include "host/part/RegionGeometry.h"
#include "host/system/MessageTexts.h"

namespace vex {

namespace {

/// Where a message is about.
std::string PlaceOf(const Feature& region)
{
    return system::Quoted(region.Tree()->Owner().Path()) + ": " + region.IsA() + " " +
           std::to_string(region.Id()) + ", " + RegionName(region) + ": ";
}

}  // namespace

HRESULT SetRegion(Feature& region, const Document& part, const RegionGeometry& geometry)
{
    const HRESULT result =
        region.Set("Document", Boxed<DocumentLink>(DocumentLink{part.Path(), DocumentType::Part}));
    if (SUCCEEDED(result)) {
        region.Set("Dimension", geometry.dimension);
        region.Set("Index", geometry.index);
        region.Set("Shape", Boxed<std::string>(geometry.shape));
    }
    return result;
}

std::string RegionName(const Feature& region)
{
    return NameOf(StoredGeometry(region));
}

Document* ResolveRegion(const Feature& region, std::string& error)
{
    if (region.Tree() == nullptr) {
        error = "the region is gone: it was deleted, or its document removed. Find it again.";
        return nullptr;
    }
    const auto& link = region.GetAs<DocumentLink>("Document");
    if (link.path == SharedText()) {
        error = PlaceOf(region) + "it is of no part. Select its geometry again.";
        return nullptr;
    }
    Document* const part = DocumentSession::Instance().OpenLinked(link, error);
    if (part == nullptr || !HasGeometry(*part, StoredGeometry(region), error)) {
        error.insert(0, PlaceOf(region));
        return nullptr;
    }
    return part;
}

VEXILinkableObject_var FindGeometry(const Feature& region, std::string& error)
{
    Document* const part = ResolveRegion(region, error);
    if (part == nullptr) {
        return {};
    }
    const RegionGeometry geometry = StoredGeometry(region);
    if (geometry.dimension == 3) {
        return FaceOf<VEXILinkableObject>(BodyAt(*part, geometry.index));
    }
    const BodyHolder body = Body::Of(*part, error);
    const Cell* const cell = body == nullptr
                                 ? nullptr
                                 : body->CellAt(static_cast<int>(geometry.dimension),
                                                static_cast<std::size_t>(geometry.index));
    if (cell == nullptr) {
        error.insert(0, PlaceOf(region));
        return {};
    }
    Feature* const access = body->Accesses().FindOrMake(*cell);
    if (access == nullptr) {
        error = PlaceOf(region) + system::Quoted(part->Path()) +
                ": it has no container of B-rep accesses. Import the part again.";
    }
    return FaceOf<VEXILinkableObject>(access);
}

}  // namespace vex
