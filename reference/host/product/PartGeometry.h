// SPDX-License-Identifier: Apache-2.0
// The shape of a part document. The geometry kernel is loaded, and the shape read, when the shape
// is first asked for.
#pragma once

#include "host/feature/Document.h"
#include "host/product/GeometryKernel.h"

#include <memory>
#include <string>
#include <vector>

namespace vex {

/// The number of the geometry that a part document has at present; 0 for a part without one and for
/// other documents.
VEX_EXPORT std::int64_t GeometryNumber(const Document& document);

/// Gives a part document a geometry, in the kernel's binary form, and its main body a feature of
/// shape for it. False when the document holds no part.
VEX_EXPORT bool GiveGeometry(Document& document, std::vector<std::byte> shape);

/// The digest of the bytes of a part document's geometry, in hexadecimal; reckoned once for each
/// geometry. Null, with file and remedy in `error`, for a document that is no part, was removed,
/// has no geometry, or whose geometry is damaged.
VEX_EXPORT const std::string* ShapeDigest(Document& part, std::string& error);

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
    DocumentHolder _part;
    std::unique_ptr<ShapeModel> _shape;
};

}  // namespace vex
