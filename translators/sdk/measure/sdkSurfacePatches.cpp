#include "sdk/measure/sdkSurfacePatches.h"

#include <TColStd_Array1OfReal.hxx>

#include <algorithm>
#include <cmath>

sdkSurfacePatches::sdkSurfacePatches(BRepAdaptor_Surface const & surface) : m_type(surface.GetType())
{
    if (smooth()) {
        return;
    }
    TColStd_Array1OfReal u_borders(1, surface.NbUIntervals(GeomAbs_CN) + 1);
    surface.UIntervals(u_borders, GeomAbs_CN);
    m_u.assign(u_borders.begin(), u_borders.end());
    TColStd_Array1OfReal v_borders(1, surface.NbVIntervals(GeomAbs_CN) + 1);
    surface.VIntervals(v_borders, GeomAbs_CN);
    m_v.assign(v_borders.begin(), v_borders.end());
    m_u_period = surface.IsUPeriodic() ? surface.UPeriod() : 0;
    if (m_type == GeomAbs_BSplineSurface || m_type == GeomAbs_BezierSurface) {
        // In which direction the weights differ, the library does not tell clearly.
        m_rational = surface.IsURational() || surface.IsVRational();
        m_u_degree = surface.UDegree();
        m_v_degree = surface.VDegree();
        return;
    }
    m_u = sdk_divided(m_u, sdk_pieces_of_unknown);
    m_v = m_type == GeomAbs_SurfaceOfExtrusion ? m_v : sdk_divided(m_v, sdk_pieces_of_unknown);
}

bool sdkSurfacePatches::round_in_u() const
{
    return m_type == GeomAbs_Cylinder || m_type == GeomAbs_Cone || m_type == GeomAbs_Sphere ||
           m_type == GeomAbs_Torus || m_type == GeomAbs_SurfaceOfRevolution;
}

bool sdkSurfacePatches::round_in_v() const
{
    return m_type == GeomAbs_Sphere || m_type == GeomAbs_Torus;
}

int sdkSurfacePatches::degree(int spline_degree) const
{
    if (spline_degree == 0) {
        return 3;
    }
    // One span of a rational spline may be an arc of nearly half a turn.
    return spline_degree + (m_rational ? 5 : 0);
}

int sdkSurfacePatches::u_points() const
{
    return m_type == GeomAbs_Plane ? 2 : sdk_gauss_points(degree(m_u_degree));
}

int sdkSurfacePatches::v_points() const
{
    return sdk_gauss_points(degree(m_v_degree));
}

sdkSpans sdkSurfacePatches::u_spans(double first, double last) const
{
    sdkSpans spans{first, last};
    for (double const border : m_u) {
        double const from =
            m_u_period > 0 ? border + m_u_period * std::floor((first - border) / m_u_period) : border;
        for (double u = from; u < last; u += m_u_period) {
            if (u > first) {
                spans.push_back(u);
            }
            if (m_u_period <= 0) {
                break;
            }
        }
    }
    std::sort(spans.begin(), spans.end());
    return round_in_u() ? sdk_divided_arcs(spans) : spans;
}
