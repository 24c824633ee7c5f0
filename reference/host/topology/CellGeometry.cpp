// SPDX-License-Identifier: Apache-2.0
// Kind, size and centre of one cell.
#include "host/topology/CellGeometry.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepGProp.hxx>
#include <BRep_Tool.hxx>
#include <GProp_GProps.hxx>
#include <TopExp.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Vertex.hxx>

#include <cmath>

namespace vex::topology {
namespace {

const char* KindOfCurve(GeomAbs_CurveType type)
{
    switch (type) {
        case GeomAbs_Line:
            return "line";
        case GeomAbs_Circle:
            return "circle";
        case GeomAbs_Ellipse:
            return "ellipse";
        case GeomAbs_Hyperbola:
            return "hyperbola";
        case GeomAbs_Parabola:
            return "parabola";
        case GeomAbs_BezierCurve:
            return "bezier";
        case GeomAbs_BSplineCurve:
            return "bspline";
        case GeomAbs_OffsetCurve:
            return "offset";
        case GeomAbs_OtherCurve:
            break;
    }
    return "other";
}

const char* KindOfSurface(GeomAbs_SurfaceType type)
{
    switch (type) {
        case GeomAbs_Plane:
            return "plane";
        case GeomAbs_Cylinder:
            return "cylinder";
        case GeomAbs_Cone:
            return "cone";
        case GeomAbs_Sphere:
            return "sphere";
        case GeomAbs_Torus:
            return "torus";
        case GeomAbs_BezierSurface:
            return "bezier";
        case GeomAbs_BSplineSurface:
            return "bspline";
        case GeomAbs_SurfaceOfRevolution:
            return "revolution";
        case GeomAbs_SurfaceOfExtrusion:
            return "extrusion";
        case GeomAbs_OffsetSurface:
            return "offset";
        case GeomAbs_OtherSurface:
            break;
    }
    return "other";
}

CellProperties AtVertex(const TopoDS_Vertex& vertex)
{
    return {0, vertex.IsNull() ? gp_Pnt() : BRep_Tool::Pnt(vertex)};
}

CellProperties Of(const GProp_GProps& properties, const TopoDS_Shape& cell)
{
    if (properties.Mass() == 0 || !std::isfinite(properties.Mass())) {
        // Without extent there is no centre of mass; any of its points is it.
        TopTools_IndexedMapOfShape vertices;
        TopExp::MapShapes(cell, TopAbs_VERTEX, vertices);
        return AtVertex(vertices.IsEmpty() ? TopoDS_Vertex() : TopoDS::Vertex(vertices(1)));
    }
    return {properties.Mass(), properties.CentreOfMass()};
}

}  // namespace

std::string KindOfCell(const TopoDS_Shape& cell)
{
    switch (cell.ShapeType()) {
        case TopAbs_VERTEX:
            return "vertex";
        case TopAbs_EDGE: {
            const TopoDS_Edge& edge = TopoDS::Edge(cell);
            return BRep_Tool::Degenerated(edge) ? "degenerate"
                                                : KindOfCurve(BRepAdaptor_Curve(edge).GetType());
        }
        case TopAbs_FACE:
            return KindOfSurface(BRepAdaptor_Surface(TopoDS::Face(cell), false).GetType());
        case TopAbs_SOLID:
            return "solid";
        default:
            return {};
    }
}

CellProperties PropertiesOfCell(const TopoDS_Shape& cell)
{
    GProp_GProps properties;
    switch (cell.ShapeType()) {
        case TopAbs_VERTEX:
            return AtVertex(TopoDS::Vertex(cell));
        case TopAbs_EDGE:
            if (!BRep_Tool::Degenerated(TopoDS::Edge(cell))) {
                BRepGProp::LinearProperties(cell, properties);
            }
            break;
        case TopAbs_FACE:
            BRepGProp::SurfaceProperties(cell, properties);
            break;
        case TopAbs_SOLID:
            BRepGProp::VolumeProperties(cell, properties);
            break;
        default:
            return {};
    }
    return Of(properties, cell);
}

}  // namespace vex::topology
