// SPDX-License-Identifier: Apache-2.0
// Reads a part's shape through the geometry kernel.
#include "host/product/PartGeometry.h"

#include "host/component/ComponentTypes.h"
#include "host/product/GeometryKernelLoader.h"
#include "host/product/ProductStructure.h"
#include "host/system/MessageTexts.h"

#include <algorithm>
#include <utility>

namespace vex {

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
    document.Tree().Create(LateTypes::Instance().Require(importedShapeType), &MainBody(*part));
    return true;
}

PartGeometry::PartGeometry(Document& part) : _part(&part)
{
    part.AddRef();
}

bool PartGeometry::Bytes(std::span<const std::byte>& bytes, std::string& error)
{
    const std::string file = system::Quoted(_part->Path()) + ": ";
    if (!_part->IsOpen() || PartOf(*_part) == nullptr) {
        error = file + "it holds no part. Name an open .VEXPart document.";
        return false;
    }
    const std::int64_t number = GeometryNumber(*_part);
    if (number == 0) {
        error = file + "the part has no geometry. Import one from a STEP file.";
        return false;
    }
    if (!_part->Geometry(static_cast<std::uint64_t>(number), bytes, error)) {
        // What was wrong with the file itself names it.
        if (!error.starts_with(file)) error.insert(0, file);
        return false;
    }
    return true;
}

ShapeModel* PartGeometry::Shape(std::string& error)
{
    if (_shape == nullptr) {
        std::span<const std::byte> bytes;
        if (!Bytes(bytes, error)) {
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
