// SPDX-License-Identifier: Apache-2.0
// Cells: one row of the component table for each dimension.
#include "host/part/Cell.h"

#include "host/part/Body.h"

namespace vex {

namespace {

const ComponentType& RowOf(int dimension)
{
    constexpr const char* rows[] = {"VEXVertexCell", "VEXEdgeCell", "VEXFaceCell", "VEXVolumeCell"};
    return ComponentTypes::Instance().Require(rows[dimension]);
}

}  // namespace

Cell::Cell(Body& body, int dimension, std::size_t index)
    : BodyMember(RowOf(dimension), body), _dimension(dimension), _index(index)
{}

const Document* DocumentOf(const Cell& cell)
{
    return cell.OwnBody().IsGone() ? nullptr : &cell.OwnBody().Part();
}

}  // namespace vex
