// SPDX-License-Identifier: Apache-2.0
// The shape of a part document. The geometry kernel is loaded, and the shape read, when the shape
// is first asked for.
#pragma once

#include "host/feature/Document.h"
#include "host/product/GeometryKernel.h"

#include <memory>
#include <string>

namespace vex {

/// Holds a reference of the document as long as it lives.
class VEX_EXPORT PartGeometry
{
public:
    explicit PartGeometry(Document& part);

    /// The shape, owned by this object. Null, with file and remedy in `error`, for a document that
    /// is no part, was removed, has no geometry, or whose geometry is damaged, and when no kernel
    /// can be loaded.
    ShapeModel* Shape(std::string& error);

private:
    bool Bytes(std::span<const std::byte>& bytes, std::string& error);

    DocumentHolder _part;
    std::unique_ptr<ShapeModel> _shape;
};

}  // namespace vex
