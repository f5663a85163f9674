#include "sdk/measure/sdkModelExtent.h"

#include "sdk/geometry/sdkMeasures.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepBndLib.hxx>
#include <BRep_Tool.hxx>
#include <Standard_Failure.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

namespace {

// Beyond this no part is that large, and the face has no bounds.
constexpr double unbounded = 1.0e50;

bool bulges(TopoDS_Face const & face)
{
    TopLoc_Location location;
    return !BRep_Tool::Surface(face, location).IsNull() &&
           BRepAdaptor_Surface(face, Standard_False).GetType() != GeomAbs_Plane;
}

bool bounded(Bnd_Box const & box)
{
    return !box.IsVoid() && !box.IsOpen() && box.SquareExtent() < unbounded;
}

} // namespace

Bnd_Box sdk_model_extent(sdkDocument const & document, sdkInventory const & inventory)
{
    Bnd_Box extent = inventory.extent();
    for (TopExp_Explorer one(sdk_whole_shape(document), TopAbs_FACE); one.More(); one.Next()) {
        auto const & face = TopoDS::Face(one.Current());
        if (!bulges(face)) {
            continue;
        }
        Bnd_Box box;
        try {
            BRepBndLib::AddOptimal(face, box, Standard_False, Standard_False);
        } catch (Standard_Failure const &) {
            // Its edges are in the extent.
            continue;
        }
        if (bounded(box)) {
            extent.Add(box);
        }
    }
    return extent;
}
