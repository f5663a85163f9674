#include "sdk/measure/sdkSurfaceSearch.h"

#include <BRepTools.hxx>
#include <BRep_Tool.hxx>
#include <Precision.hxx>
#include <gp_Vec.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

// More of them find no more points, and each costs.
constexpr std::size_t tries = 4;
constexpr int most_steps = 20;
// Where so many are off, the surface is another one.
constexpr int most_long_searches = 200;

int seeds_along(int spans)
{
    return std::clamp(2 * spans, 6, 40);
}

double kept_within(double value, double first, double last, bool periodic)
{
    return periodic ? value : std::clamp(value, first, last);
}

} // namespace

sdkSurfaceSearch::sdkSurfaceSearch(TopoDS_Face const & face, double enough)
    : m_face(face), m_surface(face, Standard_False), m_enough(enough)
{
}

bool sdkSurfaceSearch::look(gp_Pnt const & point, gp_Pnt2d place, double & best)
{
    best = std::min(best, slide(point, place));
    if (best <= m_enough) {
        m_latest = {place};
    }
    return best <= m_enough;
}

double sdkSurfaceSearch::quick(gp_Pnt const & point)
{
    double best = std::numeric_limits<double>::infinity();
    // Points come in an order in which neighbours follow each other.
    if (!m_latest.empty() && look(point, m_latest.front(), best)) {
        return best;
    }
    sow();
    std::array<std::pair<double, Seed const *>, tries> nearest;
    nearest.fill({std::numeric_limits<double>::infinity(), nullptr});
    for (auto const & seed : m_seeds) {
        double const distance = seed.point.SquareDistance(point);
        if (distance < nearest.back().first) {
            nearest.back() = {distance, &seed};
            std::sort(nearest.begin(), nearest.end());
        }
    }
    for (auto const & [distance, seed] : nearest) {
        if (seed && look(point, seed->place, best)) {
            break;
        }
    }
    return best;
}

double sdkSurfaceSearch::thorough(gp_Pnt const & point)
{
    double best = std::numeric_limits<double>::infinity();
    if (m_long_searches < most_long_searches) {
        ++m_long_searches;
        if (m_library.IsNull()) {
            m_library = new ShapeAnalysis_Surface(BRep_Tool::Surface(m_face));
        }
        look(point, m_library->ValueOfUV(point, m_enough / 10), best);
    }
    return best;
}

void sdkSurfaceSearch::sow()
{
    if (!m_seeds.empty()) {
        return;
    }
    std::array<double, 4> ends{};
    BRepTools::UVBounds(m_face, ends[0], ends[1], ends[2], ends[3]);
    if (std::any_of(ends.begin(), ends.end(), [](double end) { return Precision::IsInfinite(end); })) {
        return;
    }
    int const along_u = seeds_along(m_surface.NbUIntervals(GeomAbs_CN));
    int const along_v = seeds_along(m_surface.NbVIntervals(GeomAbs_CN));
    for (int i = 0; i < along_u; ++i) {
        for (int j = 0; j < along_v; ++j) {
            gp_Pnt2d const place(ends[0] + (ends[1] - ends[0]) * (i + 0.5) / along_u,
                                 ends[2] + (ends[3] - ends[2]) * (j + 0.5) / along_v);
            m_seeds.push_back({m_surface.Value(place.X(), place.Y()), place});
        }
    }
}

// Gauss and Newton: each step is the one that a plane through the tangents asks for.
double sdkSurfaceSearch::slide(gp_Pnt const & point, gp_Pnt2d & place) const
{
    double best = std::numeric_limits<double>::infinity();
    auto at = place;
    for (int step = 0; step < most_steps; ++step) {
        gp_Pnt found;
        gp_Vec along_u;
        gp_Vec along_v;
        m_surface.D1(at.X(), at.Y(), found, along_u, along_v);
        gp_Vec const off(found, point);
        if (double const distance = off.Magnitude(); distance < best) {
            best = distance;
            place = at;
        }
        double const uu = along_u.Dot(along_u);
        double const uv = along_u.Dot(along_v);
        double const vv = along_v.Dot(along_v);
        double const u = off.Dot(along_u);
        double const v = off.Dot(along_v);
        double const determinant = uu * vv - uv * uv;
        if (best <= m_enough / 10 || !(determinant > 1.0e-12 * uu * vv)) {
            break;
        }
        double const du = (vv * u - uv * v) / determinant;
        double const dv = (uu * v - uv * u) / determinant;
        if (du * du * uu + dv * dv * vv < m_enough * m_enough * 1.0e-4) {
            break;
        }
        at.SetCoord(kept_within(at.X() + du, m_surface.FirstUParameter(), m_surface.LastUParameter(),
                                m_surface.IsUPeriodic()),
                    kept_within(at.Y() + dv, m_surface.FirstVParameter(), m_surface.LastVParameter(),
                                m_surface.IsVPeriodic()));
    }
    return best;
}
