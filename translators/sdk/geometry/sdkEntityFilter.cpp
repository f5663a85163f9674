#include "sdk/geometry/sdkEntityFilter.h"

namespace {

sdkShapeEdit filter(sdkEntityKinds kinds)
{
    return [kinds](TDF_Label const &, TopoDS_Shape const & shape,
                   sdkShapeHistory &) -> std::optional<TopoDS_Shape> {
        if (shape.ShapeType() == TopAbs_COMPOUND) {
            return std::nullopt;
        }
        bool const kept = shape.ShapeType() <= TopAbs_FACE ? kinds.surfaces : kinds.wireframe;
        return kept ? std::nullopt : std::optional<TopoDS_Shape>(TopoDS_Shape());
    };
}

sdkEntityCount difference(sdkEntityCount before, sdkEntityCount const & after)
{
    before.faces -= after.faces;
    before.curves -= after.curves;
    before.points -= after.points;
    before.solids -= after.solids;
    before.facets_only -= after.facets_only;
    return before;
}

} // namespace

sdkFilterCounts sdk_filter_entities(sdkDocument & document, TDF_LabelSequence const & parts,
                                    sdkEntityKinds kinds)
{
    sdkFilterCounts counts;
    if (kinds.wireframe && kinds.surfaces) {
        return counts;
    }
    auto const before = document.count_entities();
    counts.parts = sdk_edit_parts(document, parts, filter(kinds)).emptied;
    counts.dropped = difference(before, document.count_entities());
    return counts;
}

TopoDS_Shape sdk_filter_shape(TopoDS_Shape const & shape, sdkEntityKinds kinds, sdkEntityCount & dropped)
{
    auto const kept = sdk_edit_shape(shape, filter(kinds));
    dropped += difference(sdk_count_entities(shape), sdk_count_entities(kept));
    return kept;
}
