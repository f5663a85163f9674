#include "iges/igesSweptSolids.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <BRep_Tool.hxx>
#include <IGESSolid_SolidOfLinearExtrusion.hxx>
#include <IGESSolid_SolidOfRevolution.hxx>
#include <Precision.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Vertex.hxx>
#include <gp_Lin.hxx>

#include <cmath>
#include <numbers>

namespace {

constexpr double smallest = 1e-7; // mm

TopoDS_Wire wire_of(TopoDS_Shape const & curve)
{
    if (curve.IsNull()) {
        return {};
    }
    if (TopExp_Explorer const wire(curve, TopAbs_WIRE); wire.More()) {
        return TopoDS::Wire(wire.Current());
    }
    BRepBuilderAPI_MakeWire wire;
    for (TopExp_Explorer edge(curve, TopAbs_EDGE); edge.More(); edge.Next()) {
        wire.Add(TopoDS::Edge(edge.Current()));
    }
    return wire.IsDone() ? wire.Wire() : TopoDS_Wire();
}

// The wire with straight edges from one of its ends to the axis, along it and back to the other end.
TopoDS_Wire closed_by_axis(TopoDS_Wire const & wire, gp_Lin const & axis)
{
    TopoDS_Vertex first;
    TopoDS_Vertex last;
    TopExp::Vertices(wire, first, last);
    if (first.IsNull() || last.IsNull()) {
        return {};
    }
    auto const foot = [&](TopoDS_Vertex const & vertex) {
        auto const point = BRep_Tool::Pnt(vertex);
        double const along = gp_Vec(axis.Location(), point).Dot(axis.Direction());
        return gp_Pnt(axis.Location().XYZ() + axis.Direction().XYZ() * along);
    };
    auto const begin = BRep_Tool::Pnt(first);
    gp_Pnt at = BRep_Tool::Pnt(last);
    BRepBuilderAPI_MakeWire closed(wire);
    for (auto const & next : {foot(last), foot(first), begin}) {
        if (at.Distance(next) > smallest) {
            closed.Add(BRepBuilderAPI_MakeEdge(at, next).Edge());
            at = next;
        }
    }
    return closed.IsDone() ? closed.Wire() : TopoDS_Wire();
}

TopoDS_Face face_within(TopoDS_Wire const & wire)
{
    if (wire.IsNull() || !BRep_Tool::IsClosed(wire)) {
        return {};
    }
    BRepBuilderAPI_MakeFace const face(wire, Standard_True);
    return face.IsDone() ? face.Face() : TopoDS_Face();
}

} // namespace

TopoDS_Shape iges_revolved(IGESSolid_SolidOfRevolution const & solid, TopoDS_Shape const & curve,
                           double millimetres_per_unit)
{
    gp_Ax1 const axis(gp_Pnt(solid.AxisPoint().XYZ() * millimetres_per_unit), solid.Axis());
    auto wire = wire_of(curve);
    if (wire.IsNull()) {
        return {};
    }
    // Form 0 closes an open curve by its way to the axis, form 1 by itself.
    if (!BRep_Tool::IsClosed(wire)) {
        wire = solid.IsClosedToAxis() ? closed_by_axis(wire, gp_Lin(axis)) : wire;
    }
    auto const face = face_within(wire);
    double const fraction = solid.Fraction();
    if (face.IsNull() || fraction <= 0 || fraction > 1) {
        return {};
    }
    bool const whole = fraction > 1 - Precision::Angular();
    BRepPrimAPI_MakeRevol revolution =
        whole ? BRepPrimAPI_MakeRevol(face, axis)
              : BRepPrimAPI_MakeRevol(face, axis, fraction * 2 * std::numbers::pi);
    return revolution.IsDone() ? revolution.Shape() : TopoDS_Shape();
}

TopoDS_Shape iges_extruded(IGESSolid_SolidOfLinearExtrusion const & solid, TopoDS_Shape const & curve,
                           double millimetres_per_unit)
{
    auto const face = face_within(wire_of(curve));
    double const length = solid.ExtrusionLength() * millimetres_per_unit;
    if (face.IsNull() || std::abs(length) < smallest) {
        return {};
    }
    BRepPrimAPI_MakePrism prism(face, gp_Vec(solid.ExtrusionDirection()) * length);
    return prism.IsDone() ? prism.Shape() : TopoDS_Shape();
}
