#include "sdk/measure/sdkEdgeExtent.h"

#include "sdk/geometry/sdkEdgeRange.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRep_Tool.hxx>
#include <Geom_BSplineCurve.hxx>
#include <TopExp.hxx>
#include <TopoDS_Vertex.hxx>
#include <gp_Circ.hxx>
#include <gp_Elips.hxx>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace {

class Search {
public:
    explicit Search(sdkTightExtent & extent) : m_extent(extent) {}

    void add(TopoDS_Edge const & edge)
    {
        if (!sdk_bounded_range(edge)) {
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
        TopLoc_Location location;
        double first = 0;
        double last = 0;
        auto const spline =
            Handle(Geom_BSplineCurve)::DownCast(BRep_Tool::Curve(edge, location, first, last));
        if (spline.IsNull() || !within(*spline, location.Transformation())) {
            search(curve);
        }
    }

private:
    void add_arc(BRepAdaptor_Curve const & curve, gp_XYZ const & x, gp_XYZ const & y)
    {
        for (std::size_t side = 0; side < 6; ++side) {
            auto const along = sdkTightExtent::direction(side);
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
            auto const along = sdkTightExtent::direction(side);
            auto const best =
                std::max_element(points.begin(), points.end(), [&](auto const & a, auto const & b) {
                    return a.XYZ().Dot(along) < b.XYZ().Dot(along);
                });
            double at = first + static_cast<double>(best - points.begin()) * step;
            auto point = *best;
            if (!m_extent.may_grow(point, side, points)) {
                continue;
            }
            double wide = step / 2;
            for (int halving = 0; halving < sdkTightExtent::halvings; ++halving, wide /= 2) {
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

    // A spline lies within its poles.
    bool within(Geom_BSplineCurve const & curve, gp_Trsf const & place) const
    {
        auto const & poles = curve.Poles();
        return std::all_of(poles.begin(), poles.end(),
                           [&](gp_Pnt const & pole) { return m_extent.contains(pole.Transformed(place)); });
    }

    sdkTightExtent & m_extent;
};

} // namespace

void sdk_add_ends(TopoDS_Edge const & edge, sdkTightExtent & extent)
{
    for (auto const & vertex : {TopExp::FirstVertex(edge), TopExp::LastVertex(edge)}) {
        if (!vertex.IsNull()) {
            extent.add(BRep_Tool::Pnt(vertex));
        }
    }
}

void sdk_add_edge(TopoDS_Edge const & edge, sdkTightExtent & extent)
{
    Search(extent).add(edge);
}
