// SPDX-License-Identifier: Apache-2.0
// Kind, size and centre of one cell.
#pragma once

#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <string>

namespace vex::topology {

struct CellProperties
{
    double measure = 0;  // length, area or volume; 0 for a vertex and an edge without length
    gp_Pnt centre;       // centre of mass
};

// `cell` is a vertex, an edge, a face or a solid. Throws what the kernel throws.
std::string KindOfCell(const TopoDS_Shape& cell);
CellProperties PropertiesOfCell(const TopoDS_Shape& cell);

}  // namespace vex::topology
