#include "sdk/measure/sdkFaceIntegrals.h"

#include "sdk/measure/sdkGaussRule.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRep_Tool.hxx>
#include <Geom2dAdaptor_Curve.hxx>
#include <GeomAdaptor_Curve.hxx>
#include <Precision.hxx>
#include <TColStd_Array1OfReal.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>
#include <gp_Pln.hxx>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace {

// Trigonometric functions over more than this want more points than the rules here have.
constexpr double longest_arc = std::numbers::pi / 4;

using Knots = std::vector<double>;

bool round_in_u(GeomAbs_SurfaceType type)
{
    return type == GeomAbs_Cylinder || type == GeomAbs_Cone || type == GeomAbs_Sphere ||
           type == GeomAbs_Torus || type == GeomAbs_SurfaceOfRevolution;
}

bool round_in_v(GeomAbs_SurfaceType type)
{
    return type == GeomAbs_Sphere || type == GeomAbs_Torus;
}

bool smooth(GeomAbs_SurfaceType type)
{
    return type <= GeomAbs_Torus;
}

// What a swept or offset surface does between its knots, nobody can tell from outside; this many pieces are
// enough for a full turn.
constexpr int pieces_of_unknown = 8;

Knots divided(Knots const & knots, int pieces)
{
    Knots all;
    for (std::size_t at = 0; at + 1 < knots.size(); ++at) {
        for (int piece = 0; piece < pieces; ++piece) {
            all.push_back(knots[at] + (knots[at + 1] - knots[at]) * piece / pieces);
        }
    }
    all.push_back(knots.back());
    return all;
}

Knots with_arcs_divided(Knots const & knots)
{
    Knots divided;
    for (std::size_t at = 0; at + 1 < knots.size(); ++at) {
        double const length = knots[at + 1] - knots[at];
        int const pieces = std::max(1, static_cast<int>(std::ceil(std::abs(length) / longest_arc - 1e-9)));
        for (int piece = 0; piece < pieces; ++piece) {
            divided.push_back(knots[at] + length * piece / pieces);
        }
    }
    divided.push_back(knots.back());
    return divided;
}

// A point of the boundary as the integration meets it: the weight holds dv.
struct Node {
    double u;
    double v;
    double weight;
};

// The parts of a curve between which it is not smooth, with the long ones divided.
template <class Curve>
Knots knots_of(Curve const & curve, double first, double last)
{
    TColStd_Array1OfReal all(1, curve.NbIntervals(GeomAbs_CN) + 1);
    curve.Intervals(all, GeomAbs_CN);
    Knots knots(all.begin(), all.end());
    knots.front() = first;
    knots.back() = last;
    switch (curve.GetType()) {
    case GeomAbs_Line:
    case GeomAbs_BSplineCurve:
    case GeomAbs_BezierCurve:
        return knots;
    case GeomAbs_Circle:
    case GeomAbs_Ellipse:
        return with_arcs_divided(knots);
    default:
        return divided(knots, pieces_of_unknown);
    }
}

template <class Curve>
int degree_of(Curve const & curve)
{
    if (curve.GetType() != GeomAbs_BSplineCurve && curve.GetType() != GeomAbs_BezierCurve) {
        return 0;
    }
    return curve.Degree() + (curve.IsRational() ? 3 : 0);
}

class Integration {
public:
    Integration(TopoDS_Face const & face, gp_Pnt const & reference)
        : m_face(TopoDS::Face(face.Oriented(TopAbs_FORWARD))), m_surface(m_face, Standard_False),
          m_reference(reference.XYZ()), m_type(m_surface.GetType()),
          m_sign(face.Orientation() == TopAbs_REVERSED ? -1 : 1)
    {
        if (!smooth(m_type)) {
            TColStd_Array1OfReal u_knots(1, m_surface.NbUIntervals(GeomAbs_CN) + 1);
            m_surface.UIntervals(u_knots, GeomAbs_CN);
            m_u_knots.assign(u_knots.begin(), u_knots.end());
            TColStd_Array1OfReal v_knots(1, m_surface.NbVIntervals(GeomAbs_CN) + 1);
            m_surface.VIntervals(v_knots, GeomAbs_CN);
            m_v_knots.assign(v_knots.begin(), v_knots.end());
            if (m_type != GeomAbs_BSplineSurface && m_type != GeomAbs_BezierSurface) {
                m_u_knots = divided(m_u_knots, pieces_of_unknown);
                m_v_knots =
                    m_type == GeomAbs_SurfaceOfExtrusion ? m_v_knots : divided(m_v_knots, pieces_of_unknown);
            }
        }
        m_u_points = m_type == GeomAbs_Plane ? 2 : points_for(surface_degree(true));
    }

    sdkFaceIntegrals run()
    {
        if (m_face.NbChildren() == 0) {
            add_whole_surface();
        }
        for (TopExp_Explorer edge(m_face, TopAbs_EDGE); edge.More(); edge.Next()) {
            auto const & one = TopoDS::Edge(edge.Current());
            if (one.Orientation() > TopAbs_REVERSED) {
                continue;
            }
            m_type == GeomAbs_Plane ? add_edge_of_plane(one) : add_edge(one);
        }
        integrate();
        m_result.vector_area *= m_sign;
        m_result.volume *= m_sign;
        m_result.volume_moment *= m_sign;
        return m_result;
    }

private:
    int surface_degree(bool in_u) const
    {
        switch (m_type) {
        case GeomAbs_BSplineSurface:
        case GeomAbs_BezierSurface: {
            // One span may be an arc of nearly half a turn. In which direction the weights differ, the
            // library does not tell clearly.
            bool const rational = m_surface.IsURational() || m_surface.IsVRational();
            return (in_u ? m_surface.UDegree() : m_surface.VDegree()) + (rational ? 5 : 0);
        }
        default:
            return 3;
        }
    }

    // The volume moment has four times the degree of the surface in it, the area a root.
    static int points_for(int degree) { return std::clamp(2 * degree, 4, 24); }

    void add_whole_surface()
    {
        double const u_first = m_surface.FirstUParameter();
        double const u_last = m_surface.LastUParameter();
        Knots knots = m_v_knots;
        if (knots.empty()) {
            knots = {m_surface.FirstVParameter(), m_surface.LastVParameter()};
        }
        if (Precision::IsInfinite(u_first) || Precision::IsInfinite(u_last) ||
            Precision::IsInfinite(knots.front()) || Precision::IsInfinite(knots.back())) {
            return;
        }
        if (round_in_v(m_type)) {
            knots = with_arcs_divided(knots);
        }
        // Down on one side and up on the other, as a boundary would run.
        add_nodes(knots, points_for(surface_degree(false)), [&](double v, double weight) {
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
        double const sign = edge.Orientation() == TopAbs_REVERSED ? -1 : 1;
        // What comes of a curve of degree n by the quadratic moments has degree 4 n.
        int const points = curve.GetType() == GeomAbs_Line ? 3 : points_for(std::max(4, degree_of(curve)));
        add_nodes(knots_of(curve, first, last), points, [&](double t, double weight) {
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
        auto knots = knots_of(curve, first, last);
        knots = line ? at_knots_of_v(curve, knots) : at_knots_of_surface(curve, knots);
        bool const along_v = line && std::abs(curve.Line().Direction().X()) < 1e-12;
        // A curve of many spans is nearly straight in each.
        bool const short_spans = knots.size() > 5 && degree_of(curve) <= 3;
        int const points = along_v       ? points_for(surface_degree(false))
                           : short_spans ? 8
                                         : points_for(std::max(5, degree_of(curve)));
        double const sign = edge.Orientation() == TopAbs_REVERSED ? -1 : 1;
        add_nodes(knots, points, [&](double t, double weight) {
            gp_Pnt2d point;
            gp_Vec2d tangent;
            curve.D1(t, point, tangent);
            m_nodes.push_back({point.X(), point.Y(), sign * weight * tangent.Y()});
        });
    }

    // A straight way through the parameters is divided where the surface is not smooth and where it bends
    // far.
    Knots at_knots_of_v(Geom2dAdaptor_Curve const & curve, Knots const & ends) const
    {
        auto const line = curve.Line();
        double const slope = line.Direction().Y();
        double const at_zero = line.Location().Y();
        Knots knots = ends;
        for (double const v : m_v_knots) {
            double const t = (v - at_zero) / slope;
            if (t > ends.front() && t < ends.back()) {
                knots.push_back(t);
            }
        }
        std::sort(knots.begin(), knots.end());
        if (!smooth(m_type) && m_type != GeomAbs_BSplineSurface && std::abs(line.Direction().X()) > 1e-12) {
            return divided(knots, pieces_of_unknown);
        }
        bool const arcs =
            round_in_v(m_type) || (round_in_u(m_type) && std::abs(line.Direction().X()) > 1e-12);
        return arcs ? with_arcs_divided(knots) : knots;
    }

    // A bent way is divided where it crosses into another patch of the surface.
    Knots at_knots_of_surface(Geom2dAdaptor_Curve const & curve, Knots const & ends) const
    {
        // Between two of these places it crosses no line twice, or so little of it that it does not matter.
        constexpr int looks = 4;
        Knots knots = ends;
        auto const places = divided(ends, looks);
        auto const add_crossings = [&](Knots const & lines, auto const & coordinate) {
            double before = coordinate(places.front());
            for (std::size_t at = 0; at + 1 < places.size(); ++at) {
                double const after = coordinate(places[at + 1]);
                for (double const value : lines) {
                    if ((before < value) != (after < value)) {
                        knots.push_back(crossing(places[at], places[at + 1], value, coordinate));
                    }
                }
                before = after;
            }
        };
        add_crossings(m_u_knots, [&](double t) { return curve.Value(t).X(); });
        add_crossings(m_v_knots, [&](double t) { return curve.Value(t).Y(); });
        std::sort(knots.begin(), knots.end());
        return knots;
    }

    // Where the coordinate reaches the value, by bisection; at one of the two places it is below, at the
    // other not.
    template <class Coordinate>
    static double crossing(double from, double to, double value, Coordinate const & coordinate)
    {
        bool const below = coordinate(from) < value;
        for (int step = 0; step < 40; ++step) {
            double const middle = (from + to) / 2;
            ((coordinate(middle) < value) == below ? from : to) = middle;
        }
        return (from + to) / 2;
    }

    template <class Add>
    static void add_nodes(Knots const & knots, int points, Add const & add)
    {
        auto const & rule = sdk_gauss_rule(points);
        for (std::size_t at = 0; at + 1 < knots.size(); ++at) {
            double const half = (knots[at + 1] - knots[at]) / 2;
            double const middle = (knots[at + 1] + knots[at]) / 2;
            for (auto const & [place, weight] : rule) {
                add(middle + half * place, half * weight);
            }
        }
    }

    // Along u span by span, and in each along the boundary: the surface keeps the patch that it is on.
    void integrate()
    {
        if (m_nodes.empty()) {
            return;
        }
        auto const [least, most] = std::minmax_element(
            m_nodes.begin(), m_nodes.end(), [](Node const & a, Node const & b) { return a.u < b.u; });
        auto const knots = knots_between(least->u, most->u);
        for (std::size_t at = 0; at + 1 < knots.size(); ++at) {
            for (auto const & node : m_nodes) {
                if (node.u > knots[at]) {
                    add_run(node, knots[at], std::min(node.u, knots[at + 1]));
                }
            }
        }
    }

    // Where the surface is not smooth along u, as often as it repeats itself, from the first to the last.
    Knots knots_between(double first, double last) const
    {
        Knots knots{first, last};
        double const period = m_u_knots.empty() || !m_surface.IsUPeriodic() ? 0 : m_surface.UPeriod();
        for (double const knot : m_u_knots) {
            double const from = period > 0 ? knot + period * std::floor((first - knot) / period) : knot;
            for (double u = from; u < last; u += period) {
                if (u > first) {
                    knots.push_back(u);
                }
                if (period <= 0) {
                    break;
                }
            }
        }
        std::sort(knots.begin(), knots.end());
        return round_in_u(m_type) ? with_arcs_divided(knots) : knots;
    }

    void add_run(Node const & node, double from, double to)
    {
        double const half = (to - from) / 2;
        for (auto const & [place, weight] : sdk_gauss_rule(m_u_points)) {
            add_point(from + half * (1 + place), node.v, half * weight * node.weight);
        }
    }

    void add_point(double u, double v, double weight)
    {
        gp_Pnt point;
        gp_Vec along_u;
        gp_Vec along_v;
        m_surface.D1(u, v, point, along_u, along_v);
        auto const normal = along_u.XYZ().Crossed(along_v.XYZ());
        auto const r = point.XYZ() - m_reference;
        double const area = weight * normal.Modulus();
        double const cone = weight * r.Dot(normal);
        m_result.area += area;
        m_result.area_moment += r * area;
        for (int row = 1; row <= 3; ++row) {
            for (int column = row; column <= 3; ++column) {
                auto & value = m_result.second_moment.ChangeValue(row, column);
                value += r.Coord(row) * r.Coord(column) * area;
                m_result.second_moment.SetValue(column, row, value);
            }
        }
        m_result.vector_area += normal * weight;
        m_result.volume += cone / 3;
        m_result.volume_moment += r * (cone / 4);
    }

    TopoDS_Face m_face;
    BRepAdaptor_Surface m_surface;
    gp_XYZ m_reference;
    GeomAbs_SurfaceType m_type;
    double m_sign;
    Knots m_u_knots; // none for surfaces that are smooth all over
    Knots m_v_knots;
    int m_u_points = 4;
    std::vector<Node> m_nodes;
    sdkFaceIntegrals m_result;
};

} // namespace

sdkFaceIntegrals & sdkFaceIntegrals::operator+=(sdkFaceIntegrals const & other)
{
    area += other.area;
    area_moment += other.area_moment;
    second_moment += other.second_moment;
    vector_area += other.vector_area;
    volume += other.volume;
    volume_moment += other.volume_moment;
    return *this;
}

sdkFaceIntegrals sdk_face_integrals(TopoDS_Face const & face, gp_Pnt const & reference)
{
    return Integration(face, reference).run();
}
