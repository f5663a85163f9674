#include "step/stepBooleans.h"

#include <BRepAlgoAPI_Common.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepPrimAPI_MakeHalfSpace.hxx>
#include <Geom_Plane.hxx>
#include <StepGeom_Plane.hxx>
#include <StepShape_HalfSpaceSolid.hxx>
#include <StepToGeom.hxx>
#include <TopExp_Explorer.hxx>
#include <gp_Pln.hxx>

namespace {

template <class Operation>
TopoDS_Shape result_of(TopoDS_Shape const & first, TopoDS_Shape const & second)
{
    Operation operation(first, second);
    return operation.IsDone() && !operation.HasErrors() ? operation.Shape() : TopoDS_Shape();
}

TopoDS_Shape single_solid_or_all(TopoDS_Shape const & shape)
{
    if (shape.IsNull()) {
        return shape;
    }
    TopExp_Explorer solids(shape, TopAbs_SOLID);
    if (!solids.More()) {
        return {};
    }
    auto const first = solids.Current();
    solids.Next();
    return solids.More() ? shape : first;
}

} // namespace

TopoDS_Shape step_boolean(StepShape_BooleanOperator operation, TopoDS_Shape const & first,
                          TopoDS_Shape const & second)
{
    switch (operation) {
    case StepShape_boDifference:
        return single_solid_or_all(result_of<BRepAlgoAPI_Cut>(first, second));
    case StepShape_boIntersection:
        return single_solid_or_all(result_of<BRepAlgoAPI_Common>(first, second));
    case StepShape_boUnion:
        return single_solid_or_all(result_of<BRepAlgoAPI_Fuse>(first, second));
    }
    return {};
}

TopoDS_Shape step_half_space(Handle(StepShape_HalfSpaceSolid) const & half_space)
{
    auto const surface = Handle(StepGeom_Plane)::DownCast(half_space->BaseSurface());
    auto const plane = surface.IsNull() ? Handle(Geom_Plane)() : StepToGeom::MakePlane(surface);
    if (plane.IsNull()) {
        return {};
    }
    // The normal points away from the material when the flag is set.
    auto const & axis = plane->Axis();
    double const side = half_space->AgreementFlag() ? -1.0 : 1.0;
    auto const inside = axis.Location().Translated(gp_Vec(axis.Direction()) * side);
    return BRepPrimAPI_MakeHalfSpace(BRepBuilderAPI_MakeFace(plane->Pln()).Face(), inside).Solid();
}
