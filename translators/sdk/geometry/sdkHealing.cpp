#include "sdk/geometry/sdkHealing.h"

#include "sdk/geometry/sdkPartEdit.h"
#include "sdk/geometry/sdkReShapeHistory.h"

#include <BRepCheck_Analyzer.hxx>
#include <BRepLib.hxx>
#include <BRep_Tool.hxx>
#include <Message_ProgressScope.hxx>
#include <Precision.hxx>
#include <ShapeFix_Shape.hxx>
#include <ShapeFix_Wireframe.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>

namespace {

std::int64_t count_loose_edges(TopoDS_Shape const & shape, double maximum)
{
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(shape, TopAbs_EDGE, edges);
    std::int64_t count = 0;
    for (int at = 1; at <= edges.Extent(); ++at) {
        count += BRep_Tool::Tolerance(TopoDS::Edge(edges(at))) > maximum ? 1 : 0;
    }
    return count;
}

bool valid(TopoDS_Shape const & shape)
{
    return BRepCheck_Analyzer(shape).IsValid();
}

} // namespace

sdkHealingCounts sdk_heal(sdkDocument & document, TDF_LabelSequence const & parts,
                          sdkHealingOptions const & options, Message_ProgressRange const & range)
{
    sdkHealingCounts counts;
    Message_ProgressScope scope(range, nullptr, 2 * parts.Length());
    auto const edit = [&](TDF_Label const &, TopoDS_Shape const & shape,
                          sdkShapeHistory & history) -> std::optional<TopoDS_Shape> {
        // Faces without a surface have nothing to repair, and the repair would not survive them.
        if (sdk_count_entities(shape).facets_only > 0) {
            return std::nullopt;
        }
        ++counts.parts;
        bool const was_valid = valid(shape);
        counts.invalid += was_valid ? 0 : 1;
        ShapeFix_Shape fix(shape);
        fix.SetPrecision(options.precision);
        fix.SetMaxTolerance(options.max_tolerance);
        fix.SetMinTolerance(Precision::Confusion());
        bool const fixed = fix.Perform(scope.Next());
        if (scope.UserBreak()) {
            return std::nullopt;
        }
        ShapeFix_Wireframe edges(fix.Shape());
        edges.SetContext(fix.Context());
        edges.SetPrecision(options.precision);
        edges.SetMaxTolerance(options.max_tolerance);
        edges.ModeDropSmallEdges() = Standard_True;
        bool const dropped = edges.FixSmallEdges();
        auto const after = edges.Shape();
        if (options.same_parameter) {
            BRepLib::SameParameter(after, options.precision);
        }
        if (!was_valid && !valid(after)) {
            ++counts.still_invalid;
        }
        counts.loose_edges += count_loose_edges(after, options.max_tolerance);
        if ((!fixed && !dropped) || after.IsSame(shape)) {
            return std::nullopt;
        }
        sdk_remember(shape, fix.Context(), history);
        return after;
    };
    auto const edits = sdk_edit_parts(document, parts, edit, scope.Next(parts.Length()));
    counts.repaired = edits.changed;
    counts.details = edits.details;
    counts.cancelled = edits.cancelled || scope.UserBreak();
    return counts;
}
