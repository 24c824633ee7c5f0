// SPDX-License-Identifier: Apache-2.0
// The shapes of the bracket assembly.
#include "BracketShapes.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepFilletAPI_MakeFillet.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRep_Tool.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <ShapeUpgrade_UnifySameDomain.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS.hxx>

#include <cmath>
#include <stdexcept>

TopoDS_Shape Cylinder(const gp_Pnt& base, const gp_Dir& axis, double radius, double height)
{
    return BRepPrimAPI_MakeCylinder(gp_Ax2(base, axis), radius, height).Shape();
}

namespace {

TopoDS_Shape Combine(BRepAlgoAPI_BooleanOperation&& operation, const TopoDS_Shape& body,
                     const TopTools_ListOfShape& tools)
{
    TopTools_ListOfShape bodies;
    bodies.Append(body);
    operation.SetArguments(bodies);
    operation.SetTools(tools);
    operation.Build();
    if (!operation.IsDone()) {
        throw std::runtime_error("a boolean operation failed");
    }
    ShapeUpgrade_UnifySameDomain unify(operation.Shape());
    unify.Build();
    // An operation answers a compound; of one solid, only the solid is wanted.
    TopExp_Explorer solids(unify.Shape(), TopAbs_SOLID);
    if (!solids.More()) {
        throw std::runtime_error("a boolean operation left no solid");
    }
    const TopoDS_Shape first = solids.Current();
    solids.Next();
    return solids.More() ? unify.Shape() : first;
}

TopoDS_Shape Cut(const TopoDS_Shape& body, const TopTools_ListOfShape& tools)
{
    return Combine(BRepAlgoAPI_Cut(), body, tools);
}

TopoDS_Shape Fuse(const TopoDS_Shape& body, const TopTools_ListOfShape& tools)
{
    return Combine(BRepAlgoAPI_Fuse(), body, tools);
}

// The L of the bracket in the plane y = 0: base 120 long, upright 100 high, 10 thick, inner bend of
// radius 8.
TopoDS_Shape Profile()
{
    const gp_Pnt corner(0, 0, 0), baseEnd(120, 0, 0), baseTop(120, 0, 10), bendBase(18, 0, 10),
        bendUpright(10, 0, 18), uprightTop(10, 0, 100), uprightBack(0, 0, 100);
    const double reach = 8 * std::sqrt(0.5);
    const gp_Pnt bendMiddle(18 - reach, 0, 18 - reach);
    BRepBuilderAPI_MakeWire wire;
    wire.Add(BRepBuilderAPI_MakeEdge(corner, baseEnd));
    wire.Add(BRepBuilderAPI_MakeEdge(baseEnd, baseTop));
    wire.Add(BRepBuilderAPI_MakeEdge(baseTop, bendBase));
    wire.Add(
        BRepBuilderAPI_MakeEdge(GC_MakeArcOfCircle(bendBase, bendMiddle, bendUpright).Value()));
    wire.Add(BRepBuilderAPI_MakeEdge(bendUpright, uprightTop));
    wire.Add(BRepBuilderAPI_MakeEdge(uprightTop, uprightBack));
    wire.Add(BRepBuilderAPI_MakeEdge(uprightBack, corner));
    return BRepBuilderAPI_MakeFace(wire.Wire()).Shape();
}

TopoDS_Shape Rib(double y)
{
    // The corner lies inside the bend, so that the rib grows out of it without a gap.
    BRepBuilderAPI_MakePolygon triangle(gp_Pnt(5, y, 5), gp_Pnt(75, y, 5), gp_Pnt(5, y, 75), true);
    return BRepPrimAPI_MakePrism(BRepBuilderAPI_MakeFace(triangle.Wire()).Shape(), gp_Vec(0, 8, 0))
        .Shape();
}

// Rounds the four free corners of the L: edges along the thickness, at the ends of base and
// upright.
TopoDS_Shape RoundCorners(const TopoDS_Shape& body)
{
    BRepFilletAPI_MakeFillet fillet(body);
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(body, TopAbs_EDGE, edges);
    int rounded = 0;
    for (int i = 1; i <= edges.Extent(); ++i) {
        const TopoDS_Edge edge = TopoDS::Edge(edges(i));
        const gp_Pnt a = BRep_Tool::Pnt(TopExp::FirstVertex(edge));
        const gp_Pnt b = BRep_Tool::Pnt(TopExp::LastVertex(edge));
        const auto both = [](double p, double q, double value) {
            return std::abs(p - value) < 1e-6 && std::abs(q - value) < 1e-6;
        };
        const bool side = both(a.Y(), b.Y(), 0) || both(a.Y(), b.Y(), 80);
        if (side && (both(a.X(), b.X(), 120) || both(a.Z(), b.Z(), 100))) {
            fillet.Add(12, edge);
            ++rounded;
        }
    }
    fillet.Build();
    if (rounded != 4 || !fillet.IsDone()) {
        throw std::runtime_error("the bracket's corners cannot be rounded");
    }
    return fillet.Shape();
}

}  // namespace

TopoDS_Shape Bracket()
{
    const gp_Dir up(0, 0, 1), along(1, 0, 0);
    TopoDS_Shape body = BRepPrimAPI_MakePrism(Profile(), gp_Vec(0, 80, 0)).Shape();
    TopTools_ListOfShape ribs;
    ribs.Append(Rib(8));
    ribs.Append(Rib(64));
    body = RoundCorners(Fuse(body, ribs));

    TopTools_ListOfShape holes;
    for (const double y : {20.0, 60.0}) {
        holes.Append(
            Cylinder({100, y, -1}, up, 4.5, 12));  // through, with a counterbore for the bolt
        holes.Append(Cylinder({100, y, 6}, up, 8.5, 5));
        holes.Append(Cylinder({-1, y, 85}, along, 3.5, 12));
    }
    holes.Append(Cylinder({-1, 40, 60}, along, 12, 12));
    holes.Append(Cylinder({85, 40, -1}, up, 10, 12));
    return Cut(body, holes);
}

// 200 x 150 x 12, a grid of 13 x 9 holes, every second one counterbored.
TopoDS_Shape Plate()
{
    const gp_Dir up(0, 0, 1);
    TopTools_ListOfShape holes;
    for (int column = 0; column < 13; ++column) {
        for (int row = 0; row < 9; ++row) {
            const double x = 10 + 15 * column, y = 15 + 15 * row;
            holes.Append(Cylinder({x, y, -1}, up, 2.5, 14));
            if ((column + row) % 2 == 0) {
                holes.Append(Cylinder({x, y, 8}, up, 4.5, 5));
            }
        }
    }
    return Cut(BRepPrimAPI_MakeBox(200, 150, 12).Shape(), holes);
}

// M8: hexagon of 13 across flats, 5.3 high, on a shank 30 long; the origin is under the head.
TopoDS_Shape Bolt()
{
    BRepBuilderAPI_MakePolygon hexagon;
    for (int i = 0; i < 6; ++i) {
        const double angle = i * M_PI / 3, radius = 13 / std::sqrt(3.0);
        hexagon.Add(gp_Pnt(radius * std::cos(angle), radius * std::sin(angle), 0));
    }
    hexagon.Close();
    const TopoDS_Shape head =
        BRepPrimAPI_MakePrism(BRepBuilderAPI_MakeFace(hexagon.Wire()).Shape(), gp_Vec(0, 0, 5.3))
            .Shape();
    TopTools_ListOfShape shank;
    shank.Append(Cylinder({0, 0, 1}, gp_Dir(0, 0, -1), 4, 31));
    return Fuse(head, shank);
}
