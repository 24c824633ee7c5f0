// SPDX-License-Identifier: Apache-2.0
// A part's shape with its cells in the kernel's map order.
#pragma once

#include "host/product/GeometryKernel.h"

#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Shape.hxx>

#include <array>
#include <vector>

namespace vex::topology {

class BRepShapeModel : public ShapeModel
{
public:
    // Throws what the kernel throws.
    explicit BRepShapeModel(const TopoDS_Shape& shape);

    std::size_t CellCount(int dimension) const override;
    std::vector<std::size_t> CellBoundary(int dimension, std::size_t index) const override;
    std::size_t DomainCount(int codimension) const override;
    std::vector<std::size_t> DomainCells(int codimension, std::size_t domain,
                                         int dimension) const override;
    std::string CellKind(int dimension, std::size_t index) const override;
    std::optional<double> CellMeasure(int dimension, std::size_t index) const override;
    std::optional<Point> CellCentre(int dimension, std::size_t index) const override;

    // Asks the kernel all that can be asked of each cell, and forgets the answers: what it breaks
    // down on, it breaks down on here.
    void AskEverything() const;

private:
    // Null where there is no such cell.
    const TopoDS_Shape* Cell(int dimension, std::size_t index) const;

    std::vector<std::size_t> CellsIn(const TopoDS_Shape& shape, std::size_t dimension) const;

    std::array<TopTools_IndexedMapOfShape, 4> cells_;
    std::array<std::vector<TopoDS_Shape>, 4> domains_;  // by codimension
};

}  // namespace vex::topology
