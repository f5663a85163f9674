#include "sdk/measure/sdkFaceBoundary.h"

#include "sdk/measure/sdkCurveSpans.h"
#include "sdk/measure/sdkPatchCrossings.h"

#include <BRep_Tool.hxx>
#include <Geom2dAdaptor_Curve.hxx>
#include <GeomAdaptor_Curve.hxx>
#include <Precision.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <gp_Pln.hxx>

#include <algorithm>
#include <cmath>

namespace {

double sign_of(TopoDS_Edge const & edge)
{
    return edge.Orientation() == TopAbs_REVERSED ? -1 : 1;
}

class Walk {
public:
    Walk(TopoDS_Face const & face, BRepAdaptor_Surface const & surface, sdkSurfacePatches const & patches)
        : m_face(TopoDS::Face(face.Oriented(TopAbs_FORWARD))), m_surface(surface), m_patches(patches)
    {
    }

    std::vector<sdkBoundaryNode> run()
    {
        if (m_face.NbChildren() == 0) {
            add_whole_surface();
        }
        for (TopExp_Explorer edge(m_face, TopAbs_EDGE); edge.More(); edge.Next()) {
            auto const & one = TopoDS::Edge(edge.Current());
            if (one.Orientation() > TopAbs_REVERSED) {
                continue;
            }
            m_patches.type() == GeomAbs_Plane ? add_edge_of_plane(one) : add_edge(one);
        }
        return std::move(m_nodes);
    }

private:
    void add_whole_surface()
    {
        double const u_first = m_surface.FirstUParameter();
        double const u_last = m_surface.LastUParameter();
        sdkSpans spans = m_patches.v_borders();
        if (spans.empty()) {
            spans = {m_surface.FirstVParameter(), m_surface.LastVParameter()};
        }
        if (Precision::IsInfinite(u_first) || Precision::IsInfinite(u_last) ||
            Precision::IsInfinite(spans.front()) || Precision::IsInfinite(spans.back())) {
            return;
        }
        if (m_patches.round_in_v()) {
            spans = sdk_divided_arcs(spans);
        }
        // Down on one side and up on the other, as a boundary would run.
        sdk_for_points(spans, m_patches.v_points(), [&](double v, double weight) {
            m_nodes.push_back({u_last, v, weight});
            m_nodes.push_back({u_first, v, -weight});
        });
    }

    // Of planes the curve in space serves as well as one on the surface, and is always there.
    void add_edge_of_plane(TopoDS_Edge const & edge)
    {
        TopLoc_Location location;
        double first = 0;
        double last = 0;
        auto const geometry = BRep_Tool::Curve(edge, location, first, last);
        if (geometry.IsNull()) {
            add_edge(edge);
            return;
        }
        GeomAdaptor_Curve const curve(geometry, first, last);
        auto const plane = m_surface.Plane();
        auto const & axes = plane.Position();
        bool const moved = !location.IsIdentity();
        auto const place = location.Transformation();
        double const sign = sign_of(edge);
        // What comes of a curve of degree n by the quadratic moments has degree 4 n.
        int const points =
            curve.GetType() == GeomAbs_Line ? 3 : sdk_gauss_points(std::max(4, sdk_curve_degree(curve)));
        sdk_for_points(sdk_curve_spans(curve, first, last), points, [&](double t, double weight) {
            gp_Pnt point;
            gp_Vec tangent;
            curve.D1(t, point, tangent);
            if (moved) {
                point.Transform(place);
                tangent.Transform(place);
            }
            auto const offset = point.XYZ() - axes.Location().XYZ();
            m_nodes.push_back({offset.Dot(axes.XDirection().XYZ()), offset.Dot(axes.YDirection().XYZ()),
                               sign * weight * tangent.XYZ().Dot(axes.YDirection().XYZ())});
        });
    }

    void add_edge(TopoDS_Edge const & edge)
    {
        double first = 0;
        double last = 0;
        auto const geometry = BRep_Tool::CurveOnSurface(edge, m_face, first, last);
        if (geometry.IsNull()) {
            return;
        }
        Geom2dAdaptor_Curve const curve(geometry, first, last);
        bool const line = curve.GetType() == GeomAbs_Line;
        if (line && std::abs(curve.Line().Direction().Y()) < 1e-12) {
            return;
        }
        auto const spans = sdk_spans_through(m_patches, curve, sdk_curve_spans(curve, first, last));
        bool const along_v = line && std::abs(curve.Line().Direction().X()) < 1e-12;
        double const sign = sign_of(edge);
        int const points = along_v ? m_patches.v_points() : points_of(curve, spans);
        sdk_for_points(spans, points, [&](double t, double weight) {
            gp_Pnt2d point;
            gp_Vec2d tangent;
            curve.D1(t, point, tangent);
            m_nodes.push_back({point.X(), point.Y(), sign * weight * tangent.Y()});
        });
    }

    static int points_of(Geom2dAdaptor_Curve const & curve, sdkSpans const & spans)
    {
        int const degree = sdk_curve_degree(curve);
        // A curve of many spans is nearly straight in each.
        bool const short_spans = spans.size() > 5 && degree <= 3;
        return short_spans ? 8 : sdk_gauss_points(std::max(5, degree));
    }

    TopoDS_Face m_face;
    BRepAdaptor_Surface const & m_surface;
    sdkSurfacePatches const & m_patches;
    std::vector<sdkBoundaryNode> m_nodes;
};

} // namespace

std::vector<sdkBoundaryNode> sdk_boundary_nodes(TopoDS_Face const & face, BRepAdaptor_Surface const & surface,
                                                sdkSurfacePatches const & patches)
{
    return Walk(face, surface, patches).run();
}
