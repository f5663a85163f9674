#include "sdk/measure/sdkFaceExtent.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepTools.hxx>
#include <BRepTopAdaptor_FClass2d.hxx>
#include <BRep_Tool.hxx>
#include <ElSLib.hxx>
#include <Geom_BSplineSurface.hxx>
#include <Precision.hxx>
#include <gp_Sphere.hxx>
#include <gp_Torus.hxx>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <vector>

namespace {

class Search {
public:
    explicit Search(sdkTightExtent & extent) : m_extent(extent) {}

    void add(TopoDS_Face const & face)
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

private:
    void add_sphere(TopoDS_Face const & face, gp_Sphere const & sphere)
    {
        for (std::size_t side = 0; side < 6; ++side) {
            gp_Pnt const point(sphere.Location().XYZ() + sdkTightExtent::direction(side) * sphere.Radius());
            add_if_inside(face, point, [&](double & u, double & v) {
                ElSLib::SphereParameters(sphere.Position(), sphere.Radius(), point, u, v);
            });
        }
    }

    void add_torus(TopoDS_Face const & face, gp_Torus const & torus)
    {
        auto const axis = torus.Axis().Direction().XYZ();
        for (std::size_t side = 0; side < 6; ++side) {
            auto const along = sdkTightExtent::direction(side);
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
        if (m_extent.contains(point)) {
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
            auto const along = sdkTightExtent::direction(side);
            auto const height = [&](Place const & place) { return place.point.XYZ().Dot(along); };
            std::sort(places.begin(), places.end(),
                      [&](Place const & a, Place const & b) { return height(a) > height(b); });
            // The farthest that is on the face at all.
            auto const best = std::find_if(places.begin(), places.end(), [&](Place const & place) {
                return !m_extent.may_grow(place.point, side, points) || is_inside(place);
            });
            if (best == places.end() || !m_extent.may_grow(best->point, side, points)) {
                continue;
            }
            auto place = *best;
            double wide_u = u_step / 2;
            double wide_v = v_step / 2;
            for (int halving = 0; halving < sdkTightExtent::halvings; ++halving, wide_u /= 2, wide_v /= 2) {
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

    // A spline lies within its poles.
    bool within(Geom_BSplineSurface const & surface, gp_Trsf const & place) const
    {
        for (int u = 1; u <= surface.NbUPoles(); ++u) {
            for (int v = 1; v <= surface.NbVPoles(); ++v) {
                if (!m_extent.contains(surface.Pole(u, v).Transformed(place))) {
                    return false;
                }
            }
        }
        return true;
    }

    sdkTightExtent & m_extent;
};

} // namespace

void sdk_add_face(TopoDS_Face const & face, sdkTightExtent & extent)
{
    Search(extent).add(face);
}
