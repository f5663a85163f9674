#pragma once

#include "sdk/measure/sdkSpans.h"

#include <BRepAdaptor_Surface.hxx>
#include <GeomAbs_SurfaceType.hxx>

// The patches in which a surface is smooth, and how many points its quadrature wants in one of them.
class sdkSurfacePatches {
public:
    explicit sdkSurfacePatches(BRepAdaptor_Surface const & surface);

    GeomAbs_SurfaceType type() const { return m_type; }
    // From the cylinder to the torus: no patches.
    bool smooth() const { return m_type <= GeomAbs_Torus; }
    // Trigonometric functions of the parameter.
    bool round_in_u() const;
    bool round_in_v() const;

    // Borders of the patches; none where the surface is smooth all over.
    sdkSpans const & u_borders() const { return m_u; }
    sdkSpans const & v_borders() const { return m_v; }

    // The spans along u, as often as the surface repeats itself, from the first to the last.
    sdkSpans u_spans(double first, double last) const;

    int u_points() const;
    int v_points() const;

private:
    int degree(int spline_degree) const;

    GeomAbs_SurfaceType m_type;
    bool m_rational = false;
    int m_u_degree = 0; // of splines
    int m_v_degree = 0;
    double m_u_period = 0; // 0 where it has none
    sdkSpans m_u;
    sdkSpans m_v;
};
