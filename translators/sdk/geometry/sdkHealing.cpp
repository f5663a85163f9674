#include "sdk/geometry/sdkHealing.h"

#include "sdk/geometry/sdkPartEdit.h"

#include <BRepCheck_Analyzer.hxx>
#include <BRepLib.hxx>
#include <Message_ProgressScope.hxx>
#include <Precision.hxx>
#include <ShapeAnalysis_ShapeTolerance.hxx>
#include <ShapeBuild_ReShape.hxx>
#include <ShapeFix_Shape.hxx>
#include <TopExp.hxx>
#include <TopTools_HSequenceOfShape.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

namespace {

void remember(TopoDS_Shape const & shape, Handle(ShapeBuild_ReShape) const & context,
              sdkShapeHistory & history)
{
    TopTools_IndexedMapOfShape all;
    TopExp::MapShapes(shape, all);
    for (int at = 1; at <= all.Extent(); ++at) {
        auto const & one = all(at);
        auto const now = context->Value(one);
        if (!now.IsSame(one)) {
            history.replace(one, now);
        }
    }
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
        auto const after = fix.Shape();
        if (options.same_parameter) {
            BRepLib::SameParameter(after, options.precision);
        }
        if (!was_valid && !valid(after)) {
            ++counts.still_invalid;
        }
        ShapeAnalysis_ShapeTolerance tolerances;
        counts.loose_edges += tolerances.OverTolerance(after, options.max_tolerance, TopAbs_EDGE)->Length();
        if (!fixed || after.IsSame(shape)) {
            return std::nullopt;
        }
        remember(shape, fix.Context(), history);
        return after;
    };
    auto const edits = sdk_edit_parts(document, parts, edit, scope.Next(parts.Length()));
    counts.repaired = edits.changed;
    counts.details = edits.details;
    counts.cancelled = edits.cancelled || scope.UserBreak();
    return counts;
}
