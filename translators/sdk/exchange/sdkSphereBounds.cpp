#include "sdk/exchange/sdkSphereBounds.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRep_Tool.hxx>
#include <ShapeFix_Face.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Iterator.hxx>

namespace {

bool has_one_loop_on_a_sphere(TopoDS_Face const & face)
{
    TopLoc_Location location;
    if (BRep_Tool::Surface(face, location).IsNull() ||
        BRepAdaptor_Surface(face, Standard_False).GetType() != GeomAbs_Sphere) {
        return false;
    }
    int loops = 0;
    for (TopoDS_Iterator one(face); one.More(); one.Next()) {
        loops += one.Value().ShapeType() == TopAbs_WIRE ? 1 : 0;
    }
    return loops == 1;
}

// True when the face got the bound.
bool add_bound(TopoDS_Face const & face, double precision, double tolerance,
               Handle(ShapeBuild_ReShape) const & changes)
{
    ShapeFix_Face repair(face);
    repair.FixAddNaturalBoundMode() = Standard_True;
    repair.SetContext(changes);
    repair.SetPrecision(precision);
    repair.SetMaxTolerance(tolerance);
    repair.Perform();
    return repair.Status(ShapeExtend_DONE5);
}

} // namespace

Handle(ShapeBuild_ReShape)
    sdk_add_sphere_bounds(TopoDS_Shape const & shape, double precision, double tolerance)
{
    Handle(ShapeBuild_ReShape) changes;
    TopTools_MapOfShape seen;
    for (TopExp_Explorer one(shape, TopAbs_FACE); one.More(); one.Next()) {
        auto const & face = TopoDS::Face(one.Current());
        // What else is to be repaired in a face is not done here, so it is tried on the side.
        if (seen.Add(face) && has_one_loop_on_a_sphere(face) &&
            add_bound(face, precision, tolerance, new ShapeBuild_ReShape)) {
            if (changes.IsNull()) {
                changes = new ShapeBuild_ReShape;
            }
            add_bound(face, precision, tolerance, changes);
        }
    }
    return changes;
}
