#include "sdk/measure/sdkSurfaceDistance.h"

#include <BRep_Tool.hxx>
#include <gp_Cone.hxx>
#include <gp_Cylinder.hxx>
#include <gp_Pln.hxx>
#include <gp_Sphere.hxx>
#include <gp_Torus.hxx>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

// A point as a surface of revolution sees it.
struct Polar {
    double radius; // distance from the axis
    double height; // along it
};

Polar polar(gp_Pnt const & point, gp_Ax3 const & axes)
{
    auto const offset = point.XYZ() - axes.Location().XYZ();
    double const height = offset.Dot(axes.Direction().XYZ());
    return {(offset - height * axes.Direction().XYZ()).Modulus(), height};
}

double from_cone(gp_Pnt const & point, gp_Cone const & cone)
{
    auto const [radius, height] = polar(point, cone.Position());
    double const at_height = cone.RefRadius() + height * std::tan(cone.SemiAngle());
    // The surface goes on beyond the apex.
    return std::min(std::abs(radius - at_height), std::abs(radius + at_height)) * std::cos(cone.SemiAngle());
}

double from_torus(gp_Pnt const & point, gp_Torus const & torus)
{
    auto const [radius, height] = polar(point, torus.Position());
    return std::abs(std::hypot(radius - torus.MajorRadius(), height) - torus.MinorRadius());
}

} // namespace

sdkSurfaceDistance::sdkSurfaceDistance(TopoDS_Face const & face) : m_surface(face, Standard_False)
{
    switch (m_surface.GetType()) {
    case GeomAbs_Plane:
    case GeomAbs_Cylinder:
    case GeomAbs_Cone:
    case GeomAbs_Sphere:
    case GeomAbs_Torus:
        m_exact = true;
        break;
    default:
        break;
    }
}

double sdkSurfaceDistance::of(gp_Pnt const & point) const
{
    switch (m_surface.GetType()) {
    case GeomAbs_Plane:
        return m_surface.Plane().Distance(point);
    case GeomAbs_Cylinder: {
        auto const cylinder = m_surface.Cylinder();
        return std::abs(polar(point, cylinder.Position()).radius - cylinder.Radius());
    }
    case GeomAbs_Cone:
        return from_cone(point, m_surface.Cone());
    case GeomAbs_Sphere: {
        auto const sphere = m_surface.Sphere();
        return std::abs(point.Distance(sphere.Location()) - sphere.Radius());
    }
    case GeomAbs_Torus:
        return from_torus(point, m_surface.Torus());
    default:
        break;
    }
    throw std::logic_error("a free-form surface needs a place to begin at");
}

double sdkSurfaceDistance::of(gp_Pnt const & point, gp_Pnt2d const & near)
{
    // An upper bound, which is nearly always good enough.
    constexpr double close = 1.0e-5;
    double const bound = m_surface.Value(near.X(), near.Y()).Distance(point);
    if (bound <= close) {
        return bound;
    }
    if (m_search.IsNull()) {
        auto const & placed = m_surface.Face();
        m_search = new ShapeAnalysis_Surface(BRep_Tool::Surface(placed));
    }
    auto const found = m_search->NextValueOfUV(near, point, close / 10);
    return std::min(bound, m_surface.Value(found.X(), found.Y()).Distance(point));
}
