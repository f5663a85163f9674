#include "sdk/exchange/sdkOpenBoundaries.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRep_Tool.hxx>
#include <Geom2d_Curve.hxx>
#include <ShapeFix_Face.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <TopoDS_Iterator.hxx>
#include <gp_Pnt2d.hxx>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace {

// What ends of curves may lie apart, in millimetres in space.
constexpr double gap = 1.0e-2;

struct Ends {
    gp_Pnt2d first;
    gp_Pnt2d last;
};

std::optional<Ends> ends_of(TopoDS_Edge const & edge, TopoDS_Face const & face)
{
    double first = 0;
    double last = 0;
    auto const curve = BRep_Tool::CurveOnSurface(edge, face, first, last);
    if (curve.IsNull()) {
        return std::nullopt;
    }
    bool const reversed = edge.Orientation() == TopAbs_REVERSED;
    return Ends{curve->Value(reversed ? last : first), curve->Value(reversed ? first : last)};
}

class Boundary {
public:
    explicit Boundary(TopoDS_Face const & face)
        : m_face(face), m_surface(face, Standard_False), m_u_gap(m_surface.UResolution(gap)),
          m_v_gap(m_surface.VResolution(gap))
    {
    }

    bool plane() const { return m_surface.GetType() == GeomAbs_Plane; }

    bool closes(TopoDS_Shape const & wire) const
    {
        std::vector<Ends> curves;
        for (TopoDS_Iterator one(wire); one.More(); one.Next()) {
            auto const ends = ends_of(TopoDS::Edge(one.Value()), m_face);
            if (!ends) {
                return false;
            }
            curves.push_back(*ends);
        }
        // Nobody says that the edges of a loop stand in their order, but mostly they do.
        for (std::size_t at = 0; at < curves.size(); ++at) {
            auto const & end = curves[at].last;
            if (!meet(end, curves[(at + 1) % curves.size()].first) &&
                std::none_of(curves.begin(), curves.end(),
                             [&](auto const & other) { return meet(end, other.first); })) {
                return false;
            }
        }
        return !curves.empty();
    }

private:
    // A period apart is apart, though it is the same place in space.
    bool meet(gp_Pnt2d const & a, gp_Pnt2d const & b) const
    {
        return std::abs(a.X() - b.X()) <= m_u_gap && std::abs(a.Y() - b.Y()) <= m_v_gap;
    }

    TopoDS_Face m_face;
    BRepAdaptor_Surface m_surface;
    double m_u_gap;
    double m_v_gap;
};

} // namespace

bool sdk_boundary_closes(TopoDS_Face const & face)
{
    TopLoc_Location location;
    if (BRep_Tool::Surface(face, location).IsNull()) {
        return true;
    }
    // A loop of a face is walked as if the face looked forward.
    auto const forward = TopoDS::Face(face.Oriented(TopAbs_FORWARD));
    Boundary const boundary(forward);
    if (boundary.plane()) {
        return true;
    }
    for (TopoDS_Iterator wire(forward); wire.More(); wire.Next()) {
        if (wire.Value().ShapeType() == TopAbs_WIRE && !boundary.closes(wire.Value())) {
            return false;
        }
    }
    return true;
}

Handle(ShapeBuild_ReShape)
    sdk_close_boundaries(TopoDS_Shape const & shape, double precision, double tolerance)
{
    Handle(ShapeBuild_ReShape) changes;
    TopTools_MapOfShape seen;
    for (TopExp_Explorer one(shape, TopAbs_FACE); one.More(); one.Next()) {
        auto const & face = TopoDS::Face(one.Current());
        if (!seen.Add(face) || sdk_boundary_closes(face)) {
            continue;
        }
        if (changes.IsNull()) {
            changes = new ShapeBuild_ReShape;
        }
        ShapeFix_Face repair(face);
        // A loop that means all of a sphere but what lies within it means that here as well.
        repair.FixAddNaturalBoundMode() =
            BRepAdaptor_Surface(face, Standard_False).GetType() == GeomAbs_Sphere ? 1 : -1;
        repair.SetContext(changes);
        repair.SetPrecision(precision);
        repair.SetMaxTolerance(tolerance);
        repair.Perform();
    }
    return changes;
}
