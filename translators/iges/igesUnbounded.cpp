#include "iges/igesUnbounded.h"

#include "sdk/geometry/sdkPartEdit.h"

#include <BRep_Tool.hxx>
#include <Geom_Surface.hxx>
#include <Precision.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

bool iges_is_unbounded(TopoDS_Shape const & shape)
{
    if (shape.IsNull() || shape.ShapeType() != TopAbs_FACE || TopExp_Explorer(shape, TopAbs_EDGE).More()) {
        return false;
    }
    auto const surface = BRep_Tool::Surface(TopoDS::Face(shape));
    if (surface.IsNull()) {
        return false;
    }
    double u1 = 0;
    double u2 = 0;
    double v1 = 0;
    double v2 = 0;
    surface->Bounds(u1, u2, v1, v2);
    return Precision::IsInfinite(u1) || Precision::IsInfinite(u2) || Precision::IsInfinite(v1) ||
           Precision::IsInfinite(v2);
}

void iges_drop_unbounded(sdkDocument & document, TDF_LabelSequence const & shapes)
{
    sdk_edit_parts(document, sdkDocument::parts_of(shapes),
                   [](TDF_Label const &, TopoDS_Shape const & shape, sdkShapeHistory &) {
                       return iges_is_unbounded(shape) ? std::optional(TopoDS_Shape()) : std::nullopt;
                   });
}
