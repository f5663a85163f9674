#include "sdk/measure/sdkTightExtent.h"

#include "sdk/geometry/sdkPointText.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <BRepTools.hxx>
#include <BRepTopAdaptor_FClass2d.hxx>
#include <BRep_Tool.hxx>
#include <ElSLib.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Geom_BSplineSurface.hxx>
#include <Precision.hxx>
#include <Standard_Failure.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <gp_Circ.hxx>
#include <gp_Elips.hxx>
#include <gp_Sphere.hxx>
#include <gp_Torus.hxx>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>
#include <vector>

namespace {

// How often the search for a place on a curve or surface halves its step.
constexpr int halvings = 24;

// Along the axes, both ways.
gp_XYZ direction(std::size_t side)
{
    double const sign = side < 3 ? -1 : 1;
    return {side % 3 == 0 ? sign : 0, side % 3 == 1 ? sign : 0, side % 3 == 2 ? sign : 0};
}

class Search {
public:
    sdkTightExtent run(TopoDS_Shape const & body)
    {
        TopTools_IndexedMapOfShape edges;
        TopExp::MapShapes(body, TopAbs_EDGE, edges);
        // From what is quick to what takes long: most of what comes later lies within.
        for (int number = 1; number <= edges.Extent(); ++number) {
            add_ends(TopoDS::Edge(edges(number)));
        }
        for (int number = 1; number <= edges.Extent(); ++number) {
            add_edge(TopoDS::Edge(edges(number)));
        }
        for (TopExp_Explorer face(body, TopAbs_FACE); face.More(); face.Next()) {
            add_face(TopoDS::Face(face.Current()));
        }
        return m_extent;
    }

private:
    void add_ends(TopoDS_Edge const & edge)
    {
        for (auto const & vertex : {TopExp::FirstVertex(edge), TopExp::LastVertex(edge)}) {
            if (!vertex.IsNull()) {
                m_extent.add(BRep_Tool::Pnt(vertex));
            }
        }
    }

    bool within(gp_Pnt const & pole, gp_Trsf const & place) const
    {
        return !m_extent.empty() && m_extent.contains(pole.Transformed(place));
    }

    // A spline lies within its poles.
    bool within(Geom_BSplineCurve const & curve, gp_Trsf const & place) const
    {
        auto const & poles = curve.Poles();
        return std::all_of(poles.begin(), poles.end(),
                           [&](gp_Pnt const & pole) { return within(pole, place); });
    }

    bool within(Geom_BSplineSurface const & surface, gp_Trsf const & place) const
    {
        for (int u = 1; u <= surface.NbUPoles(); ++u) {
            for (int v = 1; v <= surface.NbVPoles(); ++v) {
                if (!within(surface.Pole(u, v), place)) {
                    return false;
                }
            }
        }
        return true;
    }

    void add_edge(TopoDS_Edge const & edge)
    {
        TopLoc_Location location;
        double first = 0;
        double last = 0;
        auto const geometry = BRep_Tool::Curve(edge, location, first, last);
        if (BRep_Tool::Degenerated(edge) || geometry.IsNull() || Precision::IsInfinite(first) ||
            Precision::IsInfinite(last)) {
            return;
        }
        BRepAdaptor_Curve const curve(edge);
        switch (curve.GetType()) {
        case GeomAbs_Line:
            return;
        case GeomAbs_Circle: {
            auto const circle = curve.Circle();
            add_arc(curve, circle.XAxis().Direction().XYZ() * circle.Radius(),
                    circle.YAxis().Direction().XYZ() * circle.Radius());
            return;
        }
        case GeomAbs_Ellipse: {
            auto const ellipse = curve.Ellipse();
            add_arc(curve, ellipse.XAxis().Direction().XYZ() * ellipse.MajorRadius(),
                    ellipse.YAxis().Direction().XYZ() * ellipse.MinorRadius());
            return;
        }
        default:
            break;
        }
        auto const spline = Handle(Geom_BSplineCurve)::DownCast(geometry);
        if (spline.IsNull() || !within(*spline, location.Transformation())) {
            search(curve);
        }
    }

    void add_arc(BRepAdaptor_Curve const & curve, gp_XYZ const & x, gp_XYZ const & y)
    {
        for (std::size_t side = 0; side < 6; ++side) {
            auto const along = direction(side);
            double at = std::atan2(y.Dot(along), x.Dot(along));
            constexpr double turn = 2 * std::numbers::pi;
            at += turn * std::ceil((curve.FirstParameter() - at) / turn);
            if (at <= curve.LastParameter()) {
                m_extent.add(curve.Value(at));
            }
        }
    }

    void search(BRepAdaptor_Curve const & curve)
    {
        double const first = curve.FirstParameter();
        double const last = curve.LastParameter();
        int const steps =
            curve.GetType() == GeomAbs_BSplineCurve ? std::clamp(2 * curve.NbKnots(), 12, 100) : 32;
        double const step = (last - first) / steps;
        std::vector<gp_Pnt> points;
        for (int at = 0; at <= steps; ++at) {
            points.push_back(curve.Value(first + at * step));
        }
        for (std::size_t side = 0; side < 6; ++side) {
            auto const along = direction(side);
            auto const best =
                std::max_element(points.begin(), points.end(), [&](auto const & a, auto const & b) {
                    return a.XYZ().Dot(along) < b.XYZ().Dot(along);
                });
            double at = first + static_cast<double>(best - points.begin()) * step;
            auto point = *best;
            if (!worth_it(point, side, points)) {
                continue;
            }
            double wide = step / 2;
            for (int halving = 0; halving < halvings; ++halving, wide /= 2) {
                for (double const next : {std::max(first, at - wide), std::min(last, at + wide)}) {
                    auto const found = curve.Value(next);
                    if (found.XYZ().Dot(along) > point.XYZ().Dot(along)) {
                        at = next;
                        point = found;
                    }
                }
            }
            m_extent.add(point);
        }
    }

    // True when something near the point may reach beyond what is known, by the size of what it belongs to.
    bool worth_it(gp_Pnt const & point, std::size_t side, std::vector<gp_Pnt> const & points) const
    {
        if (m_extent.empty()) {
            return true;
        }
        auto const along = direction(side);
        double low = std::numeric_limits<double>::infinity();
        for (auto const & one : points) {
            low = std::min(low, one.XYZ().Dot(along));
        }
        double const high = point.XYZ().Dot(along);
        double const known = m_extent.side(side) * (side < 3 ? -1 : 1);
        return high + 0.1 * (high - low) > known;
    }

    void add_face(TopoDS_Face const & face)
    {
        TopLoc_Location location;
        auto const geometry = BRep_Tool::Surface(face, location);
        if (geometry.IsNull()) {
            return;
        }
        BRepAdaptor_Surface const surface(face, Standard_False);
        switch (surface.GetType()) {
        // Straight lines run through all their points, from edge to edge.
        case GeomAbs_Plane:
        case GeomAbs_Cylinder:
        case GeomAbs_Cone:
        case GeomAbs_SurfaceOfExtrusion:
            return;
        case GeomAbs_Sphere:
            add_sphere(face, surface.Sphere());
            return;
        case GeomAbs_Torus:
            add_torus(face, surface.Torus());
            return;
        default:
            break;
        }
        auto const spline = Handle(Geom_BSplineSurface)::DownCast(geometry);
        if (spline.IsNull() || !within(*spline, location.Transformation())) {
            search(face, surface);
        }
    }

    void add_sphere(TopoDS_Face const & face, gp_Sphere const & sphere)
    {
        for (std::size_t side = 0; side < 6; ++side) {
            gp_Pnt const point(sphere.Location().XYZ() + direction(side) * sphere.Radius());
            add_if_inside(face, point, [&](double & u, double & v) {
                ElSLib::SphereParameters(sphere.Position(), sphere.Radius(), point, u, v);
            });
        }
    }

    void add_torus(TopoDS_Face const & face, gp_Torus const & torus)
    {
        auto const axis = torus.Axis().Direction().XYZ();
        for (std::size_t side = 0; side < 6; ++side) {
            auto const along = direction(side);
            auto across = along - axis * along.Dot(axis);
            // Looking along the axis all round is equally far; some of it is inside, if anything is.
            int const ways = across.Modulus() < 1.0e-9 ? 8 : 2;
            across = ways == 2 ? across.Normalized() : torus.XAxis().Direction().XYZ();
            auto const other = axis.Crossed(across);
            for (int way = 0; way < ways; ++way) {
                double const angle = 2 * std::numbers::pi * way / ways;
                auto const out = across * std::cos(angle) + other * std::sin(angle);
                gp_Pnt const point(torus.Location().XYZ() + out * torus.MajorRadius() +
                                   along * torus.MinorRadius());
                add_if_inside(face, point, [&](double & u, double & v) {
                    ElSLib::TorusParameters(torus.Position(), torus.MajorRadius(), torus.MinorRadius(), point,
                                            u, v);
                });
            }
        }
    }

    template <class Parameters>
    void add_if_inside(TopoDS_Face const & face, gp_Pnt const & point, Parameters const & parameters)
    {
        if (!m_extent.empty() && m_extent.contains(point)) {
            return;
        }
        gp_Pnt2d place;
        double u = 0;
        double v = 0;
        parameters(u, v);
        place.SetCoord(u, v);
        if (BRepTopAdaptor_FClass2d(face, Precision::PConfusion()).Perform(place) == TopAbs_IN) {
            m_extent.add(point);
        }
    }

    struct Place {
        double u;
        double v;
        gp_Pnt point;
    };

    void search(TopoDS_Face const & face, BRepAdaptor_Surface const & surface)
    {
        constexpr int steps = 10;
        double u_first = 0;
        double u_last = 0;
        double v_first = 0;
        double v_last = 0;
        BRepTools::UVBounds(face, u_first, u_last, v_first, v_last);
        if (Precision::IsInfinite(u_first) || Precision::IsInfinite(u_last) ||
            Precision::IsInfinite(v_first) || Precision::IsInfinite(v_last)) {
            return;
        }
        double const u_step = (u_last - u_first) / steps;
        double const v_step = (v_last - v_first) / steps;
        std::vector<Place> places;
        std::vector<gp_Pnt> points;
        for (int i = 0; i < steps; ++i) {
            for (int j = 0; j < steps; ++j) {
                double const u = u_first + (i + 0.5) * u_step;
                double const v = v_first + (j + 0.5) * v_step;
                points.push_back(surface.Value(u, v));
                places.push_back({u, v, points.back()});
            }
        }
        std::optional<BRepTopAdaptor_FClass2d> inside;
        auto const is_inside = [&](Place const & place) {
            if (!inside) {
                inside.emplace(face, Precision::PConfusion());
            }
            return inside->Perform(gp_Pnt2d(place.u, place.v)) == TopAbs_IN;
        };
        for (std::size_t side = 0; side < 6; ++side) {
            auto const along = direction(side);
            auto const height = [&](Place const & place) { return place.point.XYZ().Dot(along); };
            std::sort(places.begin(), places.end(),
                      [&](Place const & a, Place const & b) { return height(a) > height(b); });
            // The farthest that is on the face at all.
            auto const best = std::find_if(places.begin(), places.end(), [&](Place const & place) {
                return !worth_it(place.point, side, points) || is_inside(place);
            });
            if (best == places.end() || !worth_it(best->point, side, points)) {
                continue;
            }
            auto place = *best;
            double wide_u = u_step / 2;
            double wide_v = v_step / 2;
            for (int halving = 0; halving < halvings; ++halving, wide_u /= 2, wide_v /= 2) {
                climb(surface, wide_u, wide_v, height, is_inside, place);
            }
            m_extent.add(place.point);
        }
    }

    template <class Height, class Inside>
    static void climb(BRepAdaptor_Surface const & surface, double wide_u, double wide_v,
                      Height const & height, Inside const & inside, Place & place)
    {
        auto const from = place;
        for (int i = -1; i <= 1; ++i) {
            for (int j = -1; j <= 1; ++j) {
                double const u = from.u + i * wide_u;
                double const v = from.v + j * wide_v;
                Place const next{u, v, surface.Value(u, v)};
                if (height(next) > height(place) && inside(next)) {
                    place = next;
                }
            }
        }
    }

    sdkTightExtent m_extent;
};

} // namespace

bool sdkTightExtent::contains(gp_Pnt const & point) const
{
    for (std::size_t at = 0; at < 3; ++at) {
        double const value = point.Coord(axis(at));
        if (!(value >= side(at) && value <= side(at + 3))) {
            return false;
        }
    }
    return true;
}

void sdkTightExtent::add(gp_Pnt const & point)
{
    for (std::size_t at = 0; at < 6; ++at) {
        double const value = point.Coord(axis(at));
        if (m_empty || (at < 3 ? value < side(at) : value > side(at))) {
            m_points[at] = point;
        }
    }
    m_empty = false;
}

gp_Pnt const * sdkTightExtent::farthest_beyond(sdkTightExtent const & other, double allowed) const
{
    gp_Pnt const * farthest = nullptr;
    for (std::size_t at = 0; !m_empty && !other.m_empty && at < 6; ++at) {
        double const beyond = at < 3 ? other.side(at) - side(at) : side(at) - other.side(at);
        if (beyond > allowed) {
            farthest = &m_points[at];
            allowed = beyond;
        }
    }
    return farthest;
}

std::string sdkTightExtent::text() const
{
    return sdk_point_text(gp_Pnt(side(0), side(1), side(2))) + "-" +
           sdk_point_text(gp_Pnt(side(3), side(4), side(5)));
}

sdkTightExtent sdk_tight_extent(TopoDS_Shape const & body)
{
    return Search().run(body);
}

double sdk_distance(gp_Pnt const & point, TopoDS_Shape const & shape)
{
    try {
        BRepExtrema_DistShapeShape const distance(BRepBuilderAPI_MakeVertex(point).Vertex(), shape);
        return distance.IsDone() && distance.NbSolution() > 0 ? distance.Value()
                                                              : std::numeric_limits<double>::infinity();
    } catch (Standard_Failure const &) {
        return std::numeric_limits<double>::infinity();
    }
}
