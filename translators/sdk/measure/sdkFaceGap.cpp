#include "sdk/measure/sdkFaceGap.h"

#include "sdk/geometry/sdkEdgeRange.h"
#include "sdk/measure/sdkSurfaceDistance.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepTools.hxx>
#include <BRepTopAdaptor_FClass2d.hxx>
#include <BRep_Tool.hxx>
#include <Geom_BSplineSurface.hxx>
#include <Geom_ElementarySurface.hxx>
#include <Geom_RectangularTrimmedSurface.hxx>
#include <Precision.hxx>
#include <ShapeAnalysis_Surface.hxx>
#include <TColStd_Array1OfReal.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Edge.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <list>

namespace {

// A rectangle of parameters.
struct Range {
    std::array<double, 2> first{};
    std::array<double, 2> last{};

    bool finite() const
    {
        return !Precision::IsInfinite(first[0]) && !Precision::IsInfinite(first[1]) &&
               !Precision::IsInfinite(last[0]) && !Precision::IsInfinite(last[1]);
    }

    bool contains(gp_Pnt2d const & at) const
    {
        return at.X() >= first[0] && at.X() <= last[0] && at.Y() >= first[1] && at.Y() <= last[1];
    }
};

Range range_of(TopoDS_Face const & face)
{
    Range range;
    BRepTools::UVBounds(face, range.first[0], range.last[0], range.first[1], range.last[1]);
    return range;
}

// Of the surface where it ends, else of the face.
Range range_of(BRepAdaptor_Surface const & surface)
{
    Range const natural{{surface.FirstUParameter(), surface.FirstVParameter()},
                        {surface.LastUParameter(), surface.LastVParameter()}};
    return natural.finite() ? natural : range_of(surface.Face());
}

struct Sample {
    gp_Pnt point;
    gp_Pnt2d place; // on the surface of its face
    bool inside;    // of the face, where the place is known
};

void add_edges(TopoDS_Face const & face, std::vector<Sample> & samples)
{
    constexpr int points = 4;
    for (TopExp_Explorer one(face, TopAbs_EDGE); one.More(); one.Next()) {
        auto const & edge = TopoDS::Edge(one.Current());
        auto const range = sdk_bounded_range(edge);
        if (!range) {
            continue;
        }
        BRepAdaptor_Curve const curve(edge);
        for (int at = 0; at < points; ++at) {
            samples.push_back({curve.Value(range->at(static_cast<double>(at) / points)), {}, false});
        }
    }
}

// The ends of the spans between two parameters, and their middles.
std::vector<double> places_between(double first, double last, TColStd_Array1OfReal const & knots)
{
    constexpr std::size_t least = 5;
    constexpr std::size_t most = 40;
    std::vector<double> ends{first};
    for (double const knot : knots) {
        if (knot > ends.back() && knot < last) {
            ends.push_back(knot);
        }
    }
    ends.push_back(last);
    // As many as make about the wanted number.
    auto const spans = ends.size() - 1;
    std::size_t const pieces =
        std::clamp<std::size_t>(most / spans, 1, std::max<std::size_t>(2, least / spans));
    std::size_t const step = std::max<std::size_t>(1, spans / most);
    std::vector<double> places;
    for (std::size_t at = 0; at < spans; at += step) {
        auto const next = std::min(at + step, spans);
        for (std::size_t piece = 0; piece < pieces; ++piece) {
            // Not on the ends, where the edges are.
            double const part = (static_cast<double>(piece) + 0.5) / static_cast<double>(pieces);
            places.push_back(ends[at] + (ends[next] - ends[at]) * part);
        }
    }
    return places;
}

void add_inside(TopoDS_Face const & face, std::vector<Sample> & samples)
{
    auto const range = range_of(face);
    if (!range.finite()) {
        return;
    }
    BRepAdaptor_Surface const surface(face, Standard_False);
    TColStd_Array1OfReal u_knots(1, surface.NbUIntervals(GeomAbs_CN) + 1);
    surface.UIntervals(u_knots, GeomAbs_CN);
    TColStd_Array1OfReal v_knots(1, surface.NbVIntervals(GeomAbs_CN) + 1);
    surface.VIntervals(v_knots, GeomAbs_CN);
    BRepTopAdaptor_FClass2d const inside(face, Precision::PConfusion());
    for (double const u : places_between(range.first[0], range.last[0], u_knots)) {
        for (double const v : places_between(range.first[1], range.last[1], v_knots)) {
            if (gp_Pnt2d const place(u, v); inside.Perform(place) == TopAbs_IN) {
                samples.push_back({surface.Value(u, v), place, true});
            }
        }
    }
}

// Where on a free-form surface the point is that is nearest to another is found by luck or by a long search.
// Surfaces that are described anew keep their parameters, or stretch, turn or swap them.
class Target {
public:
    explicit Target(TopoDS_Face const & face)
        : m_face(face), m_surface(face, Standard_False), m_distance(face)
    {
    }

    double distance(Sample const & sample, Range const & range, double enough)
    {
        if (m_distance.exact()) {
            return m_distance.of(sample.point);
        }
        if (!m_known) {
            m_range = range_of(m_surface);
            m_known = true;
        }
        double best = std::numeric_limits<double>::infinity();
        gp_Pnt2d near;
        auto const look = [&](gp_Pnt2d const & place) {
            if (m_range.contains(place)) {
                double const found = m_surface.Value(place.X(), place.Y()).Distance(sample.point);
                near = found < best ? place : near;
                best = std::min(best, found);
            }
            return best <= enough;
        };
        if (sample.inside && (look(sample.place) || look_at_likely_places(sample.place, range, look))) {
            return best;
        }
        if (best < std::numeric_limits<double>::infinity()) {
            best = std::min(best, m_distance.of(sample.point, near));
        }
        return best <= enough ? best : std::min(best, search(sample.point, enough));
    }

private:
    template <class Look>
    bool look_at_likely_places(gp_Pnt2d const & place, Range const & range, Look const & look) const
    {
        std::array<double, 2> part{};
        for (std::size_t at = 0; at < 2; ++at) {
            double const length = range.last[at] - range.first[at];
            part[at] = length > 0 ? ((at == 0 ? place.X() : place.Y()) - range.first[at]) / length : 0;
        }
        for (unsigned way = 0; way < 8; ++way) {
            auto const along = [&](std::size_t axis) {
                double const its = part[(way & 1U) != 0 ? 1 - axis : axis];
                double const one = (way & (2U << axis)) != 0 ? 1 - its : its;
                return m_range.first[axis] + (m_range.last[axis] - m_range.first[axis]) * one;
            };
            if (look({along(0), along(1)})) {
                return true;
            }
        }
        return false;
    }

    double search(gp_Pnt const & point, double enough)
    {
        if (m_search.IsNull()) {
            m_search = new ShapeAnalysis_Surface(BRep_Tool::Surface(m_face));
        }
        auto const found = m_search->ValueOfUV(point, enough / 10);
        return m_surface.Value(found.X(), found.Y()).Distance(point);
    }

    TopoDS_Face m_face;
    BRepAdaptor_Surface m_surface;
    sdkSurfaceDistance m_distance;
    Range m_range;
    bool m_known = false;
    Handle(ShapeAnalysis_Surface) m_search; // made when first needed
};

Handle(Geom_Surface) base_of(Handle(Geom_Surface) const & surface)
{
    auto const trimmed = Handle(Geom_RectangularTrimmedSurface)::DownCast(surface);
    return trimmed.IsNull() ? surface : trimmed->BasisSurface();
}

Handle(Geom_BSplineSurface) spline_of(TopoDS_Face const & face, TopLoc_Location & location)
{
    return Handle(Geom_BSplineSurface)::DownCast(base_of(BRep_Tool::Surface(face, location)));
}

bool same_knots(TColStd_Array1OfReal const & a, TColStd_Array1OfReal const & b)
{
    constexpr double enough = 1.0e-9;
    if (a.Length() != b.Length()) {
        return false;
    }
    double const stretch = (b.Last() - b.First()) / (a.Last() - a.First());
    for (int at = a.Lower(); at <= a.Upper(); ++at) {
        double const expected = b.First() + stretch * (a(at) - a.First());
        if (!(std::abs(b(at - a.Lower() + b.Lower()) - expected) <= enough * (b.Last() - b.First()))) {
            return false;
        }
    }
    return true;
}

bool same_multiplicities(TColStd_Array1OfInteger const & a, TColStd_Array1OfInteger const & b)
{
    return a.Length() == b.Length() && std::equal(a.begin(), a.end(), b.begin());
}

bool same_spans(Handle(Geom_BSplineSurface) const & a, Handle(Geom_BSplineSurface) const & b)
{
    return a->UDegree() == b->UDegree() && a->VDegree() == b->VDegree() && a->NbUPoles() == b->NbUPoles() &&
           a->NbVPoles() == b->NbVPoles() && a->IsUPeriodic() == b->IsUPeriodic() &&
           a->IsVPeriodic() == b->IsVPeriodic() &&
           same_multiplicities(a->UMultiplicities(), b->UMultiplicities()) &&
           same_multiplicities(a->VMultiplicities(), b->VMultiplicities()) &&
           same_knots(a->UKnots(), b->UKnots()) && same_knots(a->VKnots(), b->VKnots());
}

} // namespace

bool sdk_is_elementary(TopoDS_Face const & face)
{
    TopLoc_Location location;
    return base_of(BRep_Tool::Surface(face, location))->IsKind(STANDARD_TYPE(Geom_ElementarySurface));
}

bool sdk_same_spline(TopoDS_Face const & a, TopoDS_Face const & b, double tolerance)
{
    TopLoc_Location a_place;
    TopLoc_Location b_place;
    auto const first = spline_of(a, a_place);
    auto const second = spline_of(b, b_place);
    if (first.IsNull() || second.IsNull() || !same_spans(first, second)) {
        return false;
    }
    auto const a_trsf = a_place.Transformation();
    auto const b_trsf = b_place.Transformation();
    double const ratio = second->Weight(1, 1) / first->Weight(1, 1);
    for (int u = 1; u <= first->NbUPoles(); ++u) {
        for (int v = 1; v <= first->NbVPoles(); ++v) {
            auto const one = first->Pole(u, v).Transformed(a_trsf);
            double const weight = first->Weight(u, v) * ratio;
            if (!(one.Distance(second->Pole(u, v).Transformed(b_trsf)) <= tolerance) ||
                !(std::abs(second->Weight(u, v) - weight) <= 1.0e-9 * weight)) {
                return false;
            }
        }
    }
    return true;
}

sdkGap sdk_face_gap(TopoDS_Face const & face, std::vector<TopoDS_Face> const & others, double enough)
{
    std::vector<Sample> samples;
    Range range;
    if (!sdk_is_elementary(face)) {
        add_inside(face, samples);
        range = range_of(BRepAdaptor_Surface(face, Standard_False));
    }
    if (samples.empty()) {
        add_edges(face, samples);
    }
    std::list<Target> targets; // these cannot be moved
    for (auto const & other : others) {
        targets.emplace_back(other);
    }
    sdkGap gap;
    for (auto const & sample : samples) {
        double nearest = std::numeric_limits<double>::infinity();
        for (auto & target : targets) {
            double const distance = target.distance(sample, range, enough);
            nearest = std::min(nearest, distance);
            if (nearest <= enough) {
                break;
            }
        }
        if (!(nearest <= gap.distance)) {
            gap = {nearest, sample.point};
        }
    }
    return gap;
}
