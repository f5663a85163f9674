#include "sdk/measure/sdkRoundSums.h"

#include "sdk/measure/sdkArcIntegrals.h"

#include <gp_Ax3.hxx>
#include <gp_Cone.hxx>
#include <gp_Cylinder.hxx>
#include <gp_Sphere.hxx>
#include <gp_Torus.hxx>

#include <cmath>

namespace {

// What turns about the axis, at one v: its distance from the axis, its height along it, and how both change
// with v.
struct Profile {
    double radius;
    double height;
    double radius_slope;
    double height_slope;
};

Profile profile_of(GeomAdaptor_Surface const & surface, double v)
{
    switch (surface.GetType()) {
    case GeomAbs_Cone: {
        auto const cone = surface.Cone();
        double const sine = std::sin(cone.SemiAngle());
        double const cosine = std::cos(cone.SemiAngle());
        return {cone.RefRadius() + v * sine, v * cosine, sine, cosine};
    }
    case GeomAbs_Sphere: {
        double const radius = surface.Sphere().Radius();
        return {radius * std::cos(v), radius * std::sin(v), -radius * std::sin(v), radius * std::cos(v)};
    }
    case GeomAbs_Torus: {
        auto const torus = surface.Torus();
        double const minor = torus.MinorRadius();
        return {torus.MajorRadius() + minor * std::cos(v), minor * std::sin(v), -minor * std::sin(v),
                minor * std::cos(v)};
    }
    default:
        return {surface.Cylinder().Radius(), v, 0, 1};
    }
}

gp_Ax3 axes_of(GeomAdaptor_Surface const & surface)
{
    switch (surface.GetType()) {
    case GeomAbs_Cone:
        return surface.Cone().Position();
    case GeomAbs_Sphere:
        return surface.Sphere().Position();
    case GeomAbs_Torus:
        return surface.Torus().Position();
    default:
        return surface.Cylinder().Position();
    }
}

gp_Mat product(gp_XYZ const & a, gp_XYZ const & b)
{
    return {a.X() * b.X(), a.X() * b.Y(), a.X() * b.Z(), a.Y() * b.X(), a.Y() * b.Y(),
            a.Y() * b.Z(), a.Z() * b.X(), a.Z() * b.Y(), a.Z() * b.Z()};
}

gp_Mat symmetric(gp_XYZ const & a, gp_XYZ const & b)
{
    return product(a, b) + product(b, a);
}

// Points are origin + height z + radius (x cos u + y sin u). The place of the face may mirror and scale, so
// that the three are as long as each other and orthogonal, and no more.
class Rows {
public:
    Rows(BRepAdaptor_Surface const & surface, gp_Pnt const & reference) : m_surface(surface.Surface())
    {
        auto const axes = axes_of(m_surface);
        auto const & place = surface.Trsf();
        m_origin = axes.Location().Transformed(place).XYZ() - reference.XYZ();
        m_x = gp_Vec(axes.XDirection()).Transformed(place).XYZ();
        m_y = gp_Vec(axes.YDirection()).Transformed(place).XYZ();
        m_z = gp_Vec(axes.Direction()).Transformed(place).XYZ();
        m_yz = m_y.Crossed(m_z);
        m_zx = m_z.Crossed(m_x);
        m_xy = m_x.Crossed(m_y);
    }

    // The normal is radius (height' (y^z cos u + z^x sin u) - radius' x^y).
    void add(double v, sdkArcIntegrals const & arc, double weight, sdkFaceIntegrals & sums) const
    {
        auto const [radius, height, radius_slope, height_slope] = profile_of(m_surface, v);
        auto const centre = m_origin + m_z * height;
        auto const x = m_x * radius;
        auto const y = m_y * radius;
        double const density =
            weight * std::abs(radius) * m_xy.Modulus() * std::hypot(radius_slope, height_slope);
        sums.area += density * arc.one;
        sums.area_moment += (centre * arc.one + x * arc.c + y * arc.s) * density;
        sums.second_moment += (product(centre, centre) * arc.one + symmetric(centre, x * arc.c + y * arc.s) +
                               product(x, x) * arc.cc + symmetric(x, y) * arc.cs + product(y, y) * arc.ss) *
                              density;
        double const flow = weight * radius;
        sums.vector_area +=
            ((m_yz * arc.c + m_zx * arc.s) * height_slope - m_xy * (radius_slope * arc.one)) * flow;
        // The point times the normal is flow (one + c cos u + s sin u).
        double const one = height_slope * x.Dot(m_yz) - radius_slope * centre.Dot(m_xy);
        double const c = height_slope * centre.Dot(m_yz);
        double const s = height_slope * centre.Dot(m_zx);
        double const outflow = one * arc.one + c * arc.c + s * arc.s;
        sums.volume += flow * outflow / 3;
        sums.volume_moment += (centre * outflow + x * (one * arc.c + c * arc.cc + s * arc.cs) +
                               y * (one * arc.s + c * arc.cs + s * arc.ss)) *
                              (flow / 4);
    }

private:
    GeomAdaptor_Surface const & m_surface;
    gp_XYZ m_origin; // from the reference point
    gp_XYZ m_x;
    gp_XYZ m_y;
    gp_XYZ m_z;
    gp_XYZ m_yz;
    gp_XYZ m_zx;
    gp_XYZ m_xy;
};

} // namespace

bool sdk_is_round(GeomAbs_SurfaceType type)
{
    return type == GeomAbs_Cylinder || type == GeomAbs_Cone || type == GeomAbs_Sphere ||
           type == GeomAbs_Torus;
}

sdkFaceIntegrals sdk_round_integrals(BRepAdaptor_Surface const & surface,
                                     std::vector<sdkBoundaryNode> const & nodes, double u_first,
                                     gp_Pnt const & reference)
{
    Rows const rows(surface, reference);
    sdkFaceIntegrals sums;
    for (auto const & node : nodes) {
        if (node.u > u_first) {
            rows.add(node.v, sdk_arc_integrals(u_first, node.u), node.weight, sums);
        }
    }
    return sums;
}
