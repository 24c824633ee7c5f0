// SPDX-License-Identifier: Apache-2.0
// Reads a part's shape through the geometry kernel.
#include "host/product/PartGeometry.h"

#include "host/component/ComponentTypes.h"
#include "host/product/GeometryKernelLoader.h"
#include "host/product/ProductStructure.h"
#include "host/system/MessageTexts.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace vex {

namespace {

/// The number of the geometry that a document's part has; none, with file and remedy in `error`,
/// when it has no part or the part no geometry.
std::optional<std::uint64_t> PresentNumber(const Document& document, std::string& error)
{
    if (!document.IsOpen() || PartOf(document) == nullptr) {
        error =
            system::Quoted(document.Path()) + ": it holds no part. Name an open .VEXPart document.";
        return std::nullopt;
    }
    const std::int64_t number = GeometryNumber(document);
    if (number == 0) {
        error = system::Quoted(document.Path()) +
                ": the part has no geometry. Import one from a STEP file.";
        return std::nullopt;
    }
    return static_cast<std::uint64_t>(number);
}

/// What was wrong with the file itself names it.
void NameFile(const Document& document, std::string& error)
{
    const std::string file = system::Quoted(document.Path()) + ": ";
    if (!error.starts_with(file)) error.insert(0, file);
}

}  // namespace

std::int64_t GeometryNumber(const Document& document)
{
    const Feature* const part = PartOf(document);
    return part == nullptr ? 0 : std::max(part->GetAs<std::int64_t>("Geometry"), std::int64_t{0});
}

bool GiveGeometry(Document& document, std::vector<std::byte> shape)
{
    Feature* const part = PartOf(document);
    if (part == nullptr) {
        return false;
    }
    const std::uint64_t number = document.AddGeometry(std::move(shape));
    part->Set("Geometry", static_cast<std::int64_t>(number));
    AddFeature(MainBody(*part), importedShapeType);
    return true;
}

const std::string* ShapeDigest(Document& part, std::string& error)
{
    const std::optional<std::uint64_t> number = PresentNumber(part, error);
    if (!number) {
        return nullptr;
    }
    const std::string* const digest = part.Blobs().Digest(*number, error);
    if (digest == nullptr) {
        NameFile(part, error);
    }
    return digest;
}

PartGeometry::PartGeometry(Document& part) : _part(&part)
{
    part.AddRef();
}

ShapeModel* PartGeometry::Shape(std::string& error)
{
    if (_shape == nullptr) {
        std::span<const std::byte> bytes;
        const std::optional<std::uint64_t> number = PresentNumber(*_part, error);
        if (!number) {
            return nullptr;
        }
        if (!_part->Geometry(*number, bytes, error)) {
            NameFile(*_part, error);
            return nullptr;
        }
        GeometryKernel* const kernel = LoadGeometryKernel(ComponentTypes::SearchPath(), error);
        if (kernel == nullptr) {
            return nullptr;
        }
        _shape = kernel->LoadShape(bytes, error);
        if (_shape == nullptr) {
            error = system::Quoted(_part->Path()) + ": " + error;
        }
    }
    return _shape.get();
}

}  // namespace vex
