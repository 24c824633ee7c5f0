// SPDX-License-Identifier: Apache-2.0
// A part's shape with its cells in the kernel's map order.
#include "host/topology/BRepShapeModel.h"

#include "host/topology/CellGeometry.h"

#include <Standard_Failure.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>

#include <exception>

namespace vex::topology {
namespace {

constexpr std::array kCellTypes{TopAbs_VERTEX, TopAbs_EDGE, TopAbs_FACE, TopAbs_SOLID};

std::size_t CountApart(const TopoDS_Shape& shape, TopAbs_ShapeEnum type, TopAbs_ShapeEnum owner)
{
    TopTools_MapOfShape found;
    for (TopExp_Explorer each(shape, type, owner); each.More(); each.Next()) {
        found.Add(each.Current());
    }
    return static_cast<std::size_t>(found.Extent());
}

// A body is a solid, or what belongs to no larger one: a shell, a face, a wire, an edge, a vertex.
std::size_t CountBodies(const TopoDS_Shape& shape)
{
    return CountApart(shape, TopAbs_SOLID, TopAbs_SHAPE) +
           CountApart(shape, TopAbs_SHELL, TopAbs_SOLID) +
           CountApart(shape, TopAbs_FACE, TopAbs_SHELL) +
           CountApart(shape, TopAbs_WIRE, TopAbs_FACE) +
           CountApart(shape, TopAbs_EDGE, TopAbs_WIRE) +
           CountApart(shape, TopAbs_VERTEX, TopAbs_EDGE);
}

// The answer of `ask`, or an empty one where the kernel cannot give any.
template <typename Answer, typename Ask>
Answer WithoutFailure(Ask ask)
{
    try {
        return ask();
    } catch (const Standard_Failure&) {
        return {};
    } catch (const std::exception&) {
        return {};
    }
}

}  // namespace

BRepShapeModel::BRepShapeModel(const TopoDS_Shape& shape)
{
    for (std::size_t dimension = 0; dimension < cells_.size(); ++dimension) {
        TopExp::MapShapes(shape, kCellTypes[dimension], cells_[dimension]);
    }
    bodyCount_ = CountBodies(shape);
}

std::size_t BRepShapeModel::CellCount(int dimension) const
{
    if (dimension < 0 || dimension > 3) return 0;
    return static_cast<std::size_t>(cells_[static_cast<std::size_t>(dimension)].Extent());
}

const TopoDS_Shape* BRepShapeModel::Cell(int dimension, std::size_t index) const
{
    if (index < 1 || index > CellCount(dimension)) return nullptr;
    return &cells_[static_cast<std::size_t>(dimension)].FindKey(static_cast<int>(index));
}

std::string BRepShapeModel::CellKind(int dimension, std::size_t index) const
{
    const TopoDS_Shape* cell = Cell(dimension, index);
    if (cell == nullptr) return {};
    return WithoutFailure<std::string>([&] { return KindOfCell(*cell); });
}

std::optional<double> BRepShapeModel::CellMeasure(int dimension, std::size_t index) const
{
    const TopoDS_Shape* cell = Cell(dimension, index);
    if (cell == nullptr) return {};
    return WithoutFailure<std::optional<double>>([&] { return PropertiesOfCell(*cell).measure; });
}

std::optional<Point> BRepShapeModel::CellCentre(int dimension, std::size_t index) const
{
    const TopoDS_Shape* cell = Cell(dimension, index);
    if (cell == nullptr) return {};
    return WithoutFailure<std::optional<Point>>([&] {
        const gp_Pnt centre = PropertiesOfCell(*cell).centre;
        return Point{centre.X(), centre.Y(), centre.Z()};
    });
}

void BRepShapeModel::AskEverything() const
{
    for (int dimension = 0; dimension <= 3; ++dimension) {
        for (std::size_t index = 1; index <= CellCount(dimension); ++index) {
            CellKind(dimension, index);
            CellCentre(dimension, index);  // what it takes gives the measure too
        }
    }
}

}  // namespace vex::topology
