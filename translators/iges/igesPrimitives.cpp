#include "iges/igesPrimitives.h"

#include "iges/igesSweptSolids.h"

#include <BRepGProp.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRepPrimAPI_MakeWedge.hxx>
#include <GProp_GProps.hxx>
#include <IGESData_IGESEntity.hxx>
#include <IGESSolid_Block.hxx>
#include <IGESSolid_ConeFrustum.hxx>
#include <IGESSolid_Cylinder.hxx>
#include <IGESSolid_RightAngularWedge.hxx>
#include <IGESSolid_SolidOfLinearExtrusion.hxx>
#include <IGESSolid_SolidOfRevolution.hxx>
#include <IGESSolid_Sphere.hxx>
#include <IGESSolid_Torus.hxx>
#include <Standard_Failure.hxx>
#include <Standard_OutOfMemory.hxx>
#include <TopExp_Explorer.hxx>
#include <gp_Ax2.hxx>

#include <cmath>

namespace {

constexpr double smallest = 1e-7; // mm

class Primitive {
public:
    explicit Primitive(double millimetres_per_unit) : m_unit(millimetres_per_unit) {}

    TopoDS_Shape block(IGESSolid_Block const & block) const
    {
        auto const size = block.Size() * m_unit;
        return BRepPrimAPI_MakeBox(axes(block.Corner(), block.ZAxis(), block.XAxis()), size.X(), size.Y(),
                                   size.Z())
            .Shape();
    }

    // The small length is that of the side that is parallel to the x axis and lies at the end of the y axis.
    TopoDS_Shape wedge(IGESSolid_RightAngularWedge const & wedge) const
    {
        auto const size = wedge.Size() * m_unit;
        // The toolkit narrows its wedge along the y axis, too.
        return BRepPrimAPI_MakeWedge(axes(wedge.Corner(), wedge.ZAxis(), wedge.XAxis()), size.X(), size.Y(),
                                     size.Z(), wedge.XSmallLength() * m_unit)
            .Shape();
    }

    TopoDS_Shape cylinder(IGESSolid_Cylinder const & cylinder) const
    {
        return BRepPrimAPI_MakeCylinder(axes(cylinder.FaceCenter(), cylinder.Axis()),
                                        cylinder.Radius() * m_unit, cylinder.Height() * m_unit)
            .Shape();
    }

    TopoDS_Shape cone(IGESSolid_ConeFrustum const & cone) const
    {
        auto const place = axes(cone.FaceCenter(), cone.Axis());
        double const larger = cone.LargerRadius() * m_unit;
        double const smaller = cone.SmallerRadius() * m_unit;
        double const height = cone.Height() * m_unit;
        if (std::abs(larger - smaller) < smallest) {
            return BRepPrimAPI_MakeCylinder(place, larger, height).Shape();
        }
        return BRepPrimAPI_MakeCone(place, larger, smaller, height).Shape();
    }

    TopoDS_Shape sphere(IGESSolid_Sphere const & sphere) const
    {
        return BRepPrimAPI_MakeSphere(axes(sphere.Center(), gp::DZ()), sphere.Radius() * m_unit).Shape();
    }

    TopoDS_Shape torus(IGESSolid_Torus const & torus) const
    {
        double const major = torus.MajorRadius() * m_unit;
        double const minor = torus.DiscRadius() * m_unit;
        if (minor >= major) {
            // The disc would meet itself on the axis.
            return {};
        }
        return BRepPrimAPI_MakeTorus(axes(torus.AxisPoint(), torus.Axis()), major, minor).Shape();
    }

private:
    gp_Ax2 axes(gp_Pnt const & origin, gp_Dir const & z) const { return {scaled(origin), z}; }
    gp_Ax2 axes(gp_Pnt const & origin, gp_Dir const & z, gp_Dir const & x) const
    {
        return {scaled(origin), z, x};
    }
    gp_Pnt scaled(gp_Pnt const & point) const { return gp_Pnt(point.XYZ() * m_unit); }

    double m_unit;
};

template <class Entity>
Handle(Entity) as(Handle(IGESData_IGESEntity) const & entity)
{
    return Handle(Entity)::DownCast(entity);
}

TopoDS_Shape made(Handle(IGESData_IGESEntity) const & entity, double unit,
                  std::function<TopoDS_Shape(Handle(IGESData_IGESEntity) const &)> const & curve)
{
    Primitive const primitive(unit);
    switch (entity->TypeNumber()) {
    case 150:
        return primitive.block(*as<IGESSolid_Block>(entity));
    case 152:
        return primitive.wedge(*as<IGESSolid_RightAngularWedge>(entity));
    case 154:
        return primitive.cylinder(*as<IGESSolid_Cylinder>(entity));
    case 156:
        return primitive.cone(*as<IGESSolid_ConeFrustum>(entity));
    case 158:
        return primitive.sphere(*as<IGESSolid_Sphere>(entity));
    case 160:
        return primitive.torus(*as<IGESSolid_Torus>(entity));
    case 162: {
        auto const solid = as<IGESSolid_SolidOfRevolution>(entity);
        return iges_revolved(*solid, solid->Curve().IsNull() ? TopoDS_Shape() : curve(solid->Curve()), unit);
    }
    case 164: {
        auto const solid = as<IGESSolid_SolidOfLinearExtrusion>(entity);
        return iges_extruded(*solid, solid->Curve().IsNull() ? TopoDS_Shape() : curve(solid->Curve()), unit);
    }
    default:
        return {};
    }
}

// The one solid in the shape, turned outward; null when it encloses nothing.
TopoDS_Shape outward_solid(TopoDS_Shape const & shape)
{
    TopExp_Explorer const solid(shape, TopAbs_SOLID);
    if (shape.IsNull() || !solid.More()) {
        return {};
    }
    GProp_GProps properties;
    BRepGProp::VolumeProperties(solid.Current(), properties);
    if (std::abs(properties.Mass()) < smallest * smallest * smallest) {
        return {};
    }
    return properties.Mass() < 0 ? solid.Current().Reversed() : solid.Current();
}

} // namespace

bool iges_is_primitive(Handle(IGESData_IGESEntity) const & entity)
{
    return !as<IGESSolid_Block>(entity).IsNull() || !as<IGESSolid_RightAngularWedge>(entity).IsNull() ||
           !as<IGESSolid_Cylinder>(entity).IsNull() || !as<IGESSolid_ConeFrustum>(entity).IsNull() ||
           !as<IGESSolid_Sphere>(entity).IsNull() || !as<IGESSolid_Torus>(entity).IsNull() ||
           !as<IGESSolid_SolidOfRevolution>(entity).IsNull() ||
           !as<IGESSolid_SolidOfLinearExtrusion>(entity).IsNull();
}

TopoDS_Shape iges_primitive(Handle(IGESData_IGESEntity) const & entity, double millimetres_per_unit,
                            std::function<TopoDS_Shape(Handle(IGESData_IGESEntity) const &)> const & curve)
{
    try {
        return outward_solid(made(entity, millimetres_per_unit, curve));
    } catch (Standard_OutOfMemory const &) {
        throw;
    } catch (Standard_Failure const &) {
        // A height of zero, axes that are parallel: no solid has them.
        return {};
    }
}
