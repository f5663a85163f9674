#include "step/stepTransformation.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <Geom_Axis2Placement.hxx>
#include <Geom_CartesianPoint.hxx>
#include <Geom_Direction.hxx>
#include <Precision.hxx>
#include <StepGeom_Axis2Placement3d.hxx>
#include <StepGeom_CartesianPoint.hxx>
#include <StepGeom_CartesianTransformationOperator3d.hxx>
#include <StepGeom_Direction.hxx>
#include <StepToGeom.hxx>
#include <gp_Ax2.hxx>
#include <gp_Ax3.hxx>

#include <cmath>

namespace {

// A direction of the file, or what stands for it when the file leaves it out or it has no length.
gp_XYZ direction_or(Handle(StepGeom_Direction) const & given, gp_XYZ const & otherwise)
{
    if (given.IsNull()) {
        return otherwise;
    }
    auto const direction = StepToGeom::MakeDirection(given);
    return direction.IsNull() ? otherwise : direction->Dir().XYZ();
}

// False when nothing is left of the vector once the two directions are taken out of it.
bool orthogonal(gp_XYZ vector, gp_XYZ const & first, gp_XYZ const & second, gp_XYZ & result)
{
    vector -= first * vector.Dot(first);
    vector -= second * vector.Dot(second);
    if (vector.Modulus() < Precision::Confusion()) {
        return false;
    }
    result = vector.Normalized();
    return true;
}

} // namespace

bool step_transformation(Handle(StepGeom_CartesianTransformationOperator3d) const & transformation,
                         gp_Trsf & result)
{
    double const scale = transformation->HasScale() ? transformation->Scale() : 1.0;
    auto const origin = StepToGeom::MakeCartesianPoint(transformation->LocalOrigin());
    if (origin.IsNull() || !(scale > 0.0) || !std::isfinite(scale)) {
        return false;
    }
    auto const axis = [](bool given, Handle(StepGeom_Direction) const & direction) {
        return given ? direction : Handle(StepGeom_Direction)();
    };
    gp_XYZ const z = direction_or(axis(transformation->HasAxis3(), transformation->Axis3()), gp_XYZ(0, 0, 1));
    bool const along_x = std::abs(z.X()) > 1.0 - Precision::Angular();
    gp_XYZ x;
    gp_XYZ y;
    // The second axis is not the product of the others, so that a given one can make the frame left-handed.
    if (!orthogonal(direction_or(axis(transformation->HasAxis1(), transformation->Axis1()),
                                 along_x ? gp_XYZ(0, 1, 0) : gp_XYZ(1, 0, 0)),
                    z, gp_XYZ(0, 0, 0), x)) {
        return false;
    }
    auto const second = axis(transformation->HasAxis2(), transformation->Axis2());
    if (!orthogonal(direction_or(second, gp_XYZ(0, 1, 0)), z, x, y)) {
        if (!second.IsNull()) {
            return false;
        }
        y = z.Crossed(x);
    }
    auto const move = origin->Pnt().XYZ();
    result.SetValues(scale * x.X(), scale * y.X(), scale * z.X(), move.X(), scale * x.Y(), scale * y.Y(),
                     scale * z.Y(), move.Y(), scale * x.Z(), scale * y.Z(), scale * z.Z(), move.Z());
    return true;
}

gp_Trsf step_from_placement(Handle(StepGeom_Axis2Placement3d) const & placement)
{
    gp_Trsf transformation;
    if (placement.IsNull()) {
        return transformation;
    }
    auto const axes = StepToGeom::MakeAxis2Placement(placement);
    if (!axes.IsNull()) {
        transformation.SetTransformation(gp_Ax3(axes->Ax2()));
    }
    return transformation;
}

bool step_is_rigid(gp_Trsf const & transformation)
{
    return !transformation.IsNegative() &&
           std::abs(transformation.ScaleFactor() - 1.0) < Precision::Angular();
}

TopoDS_Shape step_transformed_copy(TopoDS_Shape const & shape, gp_Trsf const & transformation)
{
    return BRepBuilderAPI_Transform(shape, transformation, Standard_True).Shape();
}
