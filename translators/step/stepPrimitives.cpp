#include "step/stepPrimitives.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRepPrimAPI_MakeWedge.hxx>
#include <Geom_Axis1Placement.hxx>
#include <Geom_Axis2Placement.hxx>
#include <Geom_CartesianPoint.hxx>
#include <Precision.hxx>
#include <StepData_GlobalFactors.hxx>
#include <StepGeom_Axis1Placement.hxx>
#include <StepGeom_Axis2Placement3d.hxx>
#include <StepGeom_CartesianPoint.hxx>
#include <StepShape_Block.hxx>
#include <StepShape_RightAngularWedge.hxx>
#include <StepShape_RightCircularCone.hxx>
#include <StepShape_RightCircularCylinder.hxx>
#include <StepShape_Sphere.hxx>
#include <StepShape_Torus.hxx>
#include <StepToGeom.hxx>

#include <cmath>
#include <initializer_list>

namespace {

double length(double in_file)
{
    return in_file * StepData_GlobalFactors::Intance().LengthFactor();
}

bool all_lengths(std::initializer_list<double> values)
{
    for (double const value : values) {
        if (!(value > Precision::Confusion()) || Precision::IsInfinite(value)) {
            return false;
        }
    }
    return true;
}

bool axes_of(Handle(StepGeom_Axis2Placement3d) const & placement, gp_Ax2 & axes)
{
    auto const made =
        placement.IsNull() ? Handle(Geom_Axis2Placement)() : StepToGeom::MakeAxis2Placement(placement);
    if (!made.IsNull()) {
        axes = made->Ax2();
    }
    return !made.IsNull();
}

// Solids of revolution are the same for any second axis.
bool axes_of(Handle(StepGeom_Axis1Placement) const & placement, gp_Ax2 & axes)
{
    auto const made =
        placement.IsNull() ? Handle(Geom_Axis1Placement)() : StepToGeom::MakeAxis1Placement(placement);
    if (!made.IsNull()) {
        axes = gp_Ax2(made->Ax1().Location(), made->Ax1().Direction());
    }
    return !made.IsNull();
}

TopoDS_Shape block(StepShape_Block const & entity)
{
    double const x = length(entity.X());
    double const y = length(entity.Y());
    double const z = length(entity.Z());
    gp_Ax2 axes;
    if (!all_lengths({x, y, z}) || !axes_of(entity.Position(), axes)) {
        return {};
    }
    return BRepPrimAPI_MakeBox(axes, x, y, z).Solid();
}

TopoDS_Shape wedge(StepShape_RightAngularWedge const & entity)
{
    double const x = length(entity.X());
    double const y = length(entity.Y());
    double const z = length(entity.Z());
    double const top = length(entity.Ltx());
    gp_Ax2 axes;
    if (!all_lengths({x, y, z}) || !(top >= 0.0) || !(top < x) || !axes_of(entity.Position(), axes)) {
        return {};
    }
    return BRepPrimAPI_MakeWedge(axes, x, y, z, top < Precision::Confusion() ? 0.0 : top).Solid();
}

TopoDS_Shape sphere(StepShape_Sphere const & entity)
{
    double const radius = length(entity.Radius());
    auto const point = Handle(StepGeom_CartesianPoint)::DownCast(entity.Centre());
    if (!all_lengths({radius}) || point.IsNull()) {
        return {};
    }
    auto const centre = StepToGeom::MakeCartesianPoint(point);
    return centre.IsNull() ? TopoDS_Shape()
                           : TopoDS_Shape(BRepPrimAPI_MakeSphere(centre->Pnt(), radius).Solid());
}

TopoDS_Shape torus(StepShape_Torus const & entity)
{
    double const major = length(entity.MajorRadius());
    double const minor = length(entity.MinorRadius());
    gp_Ax2 axes;
    // One that meets itself bounds no solid.
    if (!all_lengths({minor, major - minor}) || !axes_of(entity.Position(), axes)) {
        return {};
    }
    return BRepPrimAPI_MakeTorus(axes, major, minor).Solid();
}

TopoDS_Shape cylinder(StepShape_RightCircularCylinder const & entity)
{
    double const radius = length(entity.Radius());
    double const height = length(entity.Height());
    gp_Ax2 axes;
    if (!all_lengths({radius, height}) || !axes_of(entity.Position(), axes)) {
        return {};
    }
    return BRepPrimAPI_MakeCylinder(axes, radius, height).Solid();
}

// Its radius is the one at the placement, 0 for the apex; along the axis the cone grows wider.
TopoDS_Shape cone(StepShape_RightCircularCone const & entity)
{
    double const radius = length(entity.Radius());
    double const height = length(entity.Height());
    double const angle = entity.SemiAngle() * StepData_GlobalFactors::Intance().PlaneAngleFactor();
    gp_Ax2 axes;
    if (!all_lengths({height}) || !(radius >= 0.0) || !(angle > Precision::Angular()) ||
        !(angle < M_PI / 2 - Precision::Angular()) || !axes_of(entity.Position(), axes)) {
        return {};
    }
    return BRepPrimAPI_MakeCone(axes, radius, radius + height * std::tan(angle), height).Solid();
}

// The primitive of the entity if it is of that kind.
template <class Kind>
bool made(Handle(Standard_Transient) const & entity, TopoDS_Shape (*make)(Kind const &),
          TopoDS_Shape & result)
{
    auto const primitive = Handle(Kind)::DownCast(entity);
    if (!primitive.IsNull()) {
        result = make(*primitive);
    }
    return !primitive.IsNull();
}

} // namespace

TopoDS_Shape step_primitive(Handle(Standard_Transient) const & entity)
{
    TopoDS_Shape result;
    made(entity, block, result) || made(entity, wedge, result) || made(entity, sphere, result) ||
        made(entity, torus, result) || made(entity, cylinder, result) || made(entity, cone, result);
    return result;
}

bool step_is_primitive(Handle(Standard_Transient) const & entity)
{
    return entity->IsKind(STANDARD_TYPE(StepShape_Block)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_RightAngularWedge)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_Sphere)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_Torus)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_RightCircularCylinder)) ||
           entity->IsKind(STANDARD_TYPE(StepShape_RightCircularCone));
}
