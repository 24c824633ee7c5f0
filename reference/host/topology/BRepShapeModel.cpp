// SPDX-License-Identifier: Apache-2.0
// A part's shape with its cells in the kernel's map order.
#include "host/topology/BRepShapeModel.h"

#include "host/topology/CellGeometry.h"

#include <Standard_Failure.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>

#include <algorithm>
#include <exception>

namespace vex::topology {
namespace {

constexpr std::array kCellTypes{TopAbs_VERTEX, TopAbs_EDGE, TopAbs_FACE, TopAbs_SOLID};

// Appends the shapes of a type that stand outside of those of the type `owner`, each once.
void AppendApart(const TopoDS_Shape& shape, TopAbs_ShapeEnum type, TopAbs_ShapeEnum owner,
                 std::vector<TopoDS_Shape>& apart)
{
    TopTools_MapOfShape found;
    for (TopExp_Explorer each(shape, type, owner); each.More(); each.Next()) {
        if (found.Add(each.Current())) apart.push_back(each.Current());
    }
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
    AppendApart(shape, TopAbs_SOLID, TopAbs_SHAPE, domains_[0]);
    AppendApart(shape, TopAbs_SHELL, TopAbs_SOLID, domains_[1]);
    AppendApart(shape, TopAbs_FACE, TopAbs_SHELL, domains_[1]);
    AppendApart(shape, TopAbs_WIRE, TopAbs_FACE, domains_[2]);
    AppendApart(shape, TopAbs_EDGE, TopAbs_WIRE, domains_[2]);
    AppendApart(shape, TopAbs_VERTEX, TopAbs_EDGE, domains_[3]);
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

std::vector<std::size_t> BRepShapeModel::CellsIn(const TopoDS_Shape& shape,
                                                 std::size_t dimension) const
{
    std::vector<std::size_t> cells;
    TopTools_MapOfShape found;
    for (TopExp_Explorer each(shape, kCellTypes[dimension]); each.More(); each.Next()) {
        if (found.Add(each.Current())) {
            const int index = cells_[dimension].FindIndex(each.Current());
            if (index > 0) cells.push_back(static_cast<std::size_t>(index));
        }
    }
    return cells;
}

std::vector<std::size_t> BRepShapeModel::CellBoundary(int dimension, std::size_t index) const
{
    const TopoDS_Shape* cell = Cell(dimension, index);
    if (cell == nullptr || dimension == 0) return {};
    return WithoutFailure<std::vector<std::size_t>>(
        [&] { return CellsIn(*cell, static_cast<std::size_t>(dimension - 1)); });
}

std::size_t BRepShapeModel::DomainCount(int codimension) const
{
    if (codimension < 0 || codimension > 3) return 0;
    return domains_[static_cast<std::size_t>(codimension)].size();
}

std::vector<std::size_t> BRepShapeModel::DomainCells(int codimension, std::size_t domain,
                                                     int dimension) const
{
    if (domain < 1 || domain > DomainCount(codimension) || dimension < 0 || dimension > 3)
        return {};
    const TopoDS_Shape& shape = domains_[static_cast<std::size_t>(codimension)][domain - 1];
    return WithoutFailure<std::vector<std::size_t>>([&] {
        std::vector<std::size_t> cells = CellsIn(shape, static_cast<std::size_t>(dimension));
        std::ranges::sort(cells);
        return cells;
    });
}

void BRepShapeModel::AskEverything() const
{
    for (int dimension = 0; dimension <= 3; ++dimension) {
        for (std::size_t index = 1; index <= CellCount(dimension); ++index) {
            CellKind(dimension, index);
            CellCentre(dimension, index);  // what it takes gives the measure too
            CellBoundary(dimension, index);
        }
    }
    for (int codimension = 0; codimension <= 3; ++codimension) {
        for (std::size_t domain = 1; domain <= DomainCount(codimension); ++domain) {
            for (int dimension = 0; dimension <= 3; ++dimension) {
                DomainCells(codimension, domain, dimension);
            }
        }
    }
}

}  // namespace vex::topology
