// SPDX-License-Identifier: Apache-2.0
// The shape of a part document as a body with domains and cells. There is one body of a part as
// long as somebody holds it. It owns its domains and cells, which are made when first asked for,
// and holds the document.
#pragma once

#include "host/part/Cell.h"
#include "host/part/Domain.h"
#include "host/product/PartGeometry.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace vex {

class BRepAccesses;
class Body;

/// Holds one counted reference of a body.
struct VEX_EXPORT ReleaseBody
{
    void operator()(const Body* body) const;
};
using BodyHolder = std::unique_ptr<Body, ReleaseBody>;

class VEX_EXPORT Body final : public Component
{
public:
    /// The body of the document's present geometry: the one that lives, or a new one. Empty, with
    /// file and remedy in `error`, as PartGeometry::Shape.
    static BodyHolder Of(Document& part, std::string& error);

    ~Body() override;

    /// Once the document was removed, or the part has another geometry.
    bool IsGone() const;
    int IsNull() const override { return IsGone() ? 1 : 0; }

    Document& Part() const noexcept { return *_part; }
    const ShapeModel& Shape() const noexcept { return *_shape; }
    /// The digest of the geometry's bytes, in hexadecimal.
    const std::string& ShapeDigest();
    /// The accesses to its cells that are stored in the document.
    BRepAccesses& Accesses();

    /// The same object each time; null when there is no such cell or domain.
    Cell* CellAt(int dimension, std::size_t index);
    Domain* DomainAt(int codimension, std::size_t index);

private:
    Body(Document& part, PartGeometry geometry, const ShapeModel& shape);

    Document* _part;  ///< held by _geometry
    PartGeometry _geometry;
    const ShapeModel* _shape;
    std::int64_t _number;  ///< of the geometry in the document
    bool _replaced = false;
    std::string _digest;
    std::unique_ptr<BRepAccesses> _accesses;
    std::array<std::vector<std::unique_ptr<Cell>>, 4> _cells;      ///< by dimension
    std::array<std::vector<std::unique_ptr<Domain>>, 4> _domains;  ///< by codimension
};

}  // namespace vex
