// SPDX-License-Identifier: Apache-2.0
// The shapes of the bracket assembly, in millimetres. Each throws std::runtime_error, or what the
// kernel throws, when it cannot be made.
#pragma once

#include <TopoDS_Shape.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

TopoDS_Shape Cylinder(const gp_Pnt& base, const gp_Dir& axis, double radius, double height);

// An L with a rounded bend along y, its corner at the origin, base towards x, upright towards z.
TopoDS_Shape Bracket();

// A grid of holes; a corner at the origin.
TopoDS_Shape Plate();

// Points down; the origin is under its head.
TopoDS_Shape Bolt();
