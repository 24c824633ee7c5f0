// SPDX-License-Identifier: Apache-2.0
// Makes the shapes of tests.
#include "TestShapes.h"

#include "host/topology/ShapeBytes.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <Geom_SphericalSurface.hxx>
#include <Precision.hxx>
#include <Standard_Failure.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shell.hxx>
#include <TopoDS_Solid.hxx>
#include <TopoDS_Vertex.hxx>
#include <TopoDS_Wire.hxx>
#include <gp_Circ.hxx>
#include <gp_Pln.hxx>

#include <initializer_list>
#include <stdexcept>

namespace {

TopoDS_Shape Box()
{
    return BRepPrimAPI_MakeBox(10, 20, 30).Shape();
}

TopoDS_Shape Cylinder()
{
    return BRepPrimAPI_MakeCylinder(gp_Ax2({50, 0, 0}, gp_Dir(0, 0, 1)), 5, 20).Shape();
}

// The whole surface is one face: no wire, no edge, no vertex.
TopoDS_Shape BareSphere()
{
    const BRep_Builder builder;
    TopoDS_Face face;
    builder.MakeFace(face, new Geom_SphericalSurface(gp_Ax3(), 10), Precision::Confusion());
    builder.NaturalRestriction(face, true);
    TopoDS_Shell shell;
    builder.MakeShell(shell);
    builder.Add(shell, face);
    shell.Closed(true);
    TopoDS_Solid solid;
    builder.MakeSolid(solid);
    builder.Add(solid, shell);
    return solid;
}

TopoDS_Shape Together(std::initializer_list<TopoDS_Shape> shapes)
{
    const BRep_Builder builder;
    TopoDS_Compound compound;
    builder.MakeCompound(compound);
    for (const TopoDS_Shape& shape : shapes) {
        builder.Add(compound, shape);
    }
    return compound;
}

TopoDS_Shape Sheets()
{
    return Together(
        {TopExp_Explorer(Box(), TopAbs_SHELL).Current(),
         BRepBuilderAPI_MakeFace(gp_Pln({0, 0, 100}, gp_Dir(0, 0, 1)), 0, 4, 0, 5).Face()});
}

TopoDS_Shape WireFrame()
{
    return Together(
        {BRepBuilderAPI_MakePolygon(gp_Pnt(0, 0, 0), gp_Pnt(3, 0, 0), gp_Pnt(0, 4, 0), true).Wire(),
         BRepBuilderAPI_MakeEdge(gp_Circ(gp_Ax2({0, 0, 10}, gp_Dir(0, 0, 1)), 2)).Edge(),
         BRepBuilderAPI_MakeVertex(gp_Pnt(7, 7, 7)).Vertex()});
}

}  // namespace

std::vector<TestShape> TestShapes()
{
    using vex::topology::WriteShape;
    try {
        return {{"box", WriteShape(Box())},
                {"cylinder", WriteShape(Cylinder())},
                {"sphere", WriteShape(BRepPrimAPI_MakeSphere(10).Shape())},
                {"torus", WriteShape(BRepPrimAPI_MakeTorus(20, 5).Shape())},
                {"bare_sphere", WriteShape(BareSphere())},
                {"sheets", WriteShape(Sheets())},
                {"wire_frame", WriteShape(WireFrame())},
                {"two_solids", WriteShape(Together({Box(), Cylinder()}))}};
    } catch (const Standard_Failure& failure) {
        throw std::runtime_error(failure.GetMessageString());
    }
}
