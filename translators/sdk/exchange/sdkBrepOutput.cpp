#include "sdk/exchange/sdkBrepOutput.h"

#include "sdk/exchange/sdkOffsetCurves.h"
#include "sdk/exchange/sdkRepairCheck.h"
#include "sdk/exchange/sdkZeroEdges.h"
#include "sdk/geometry/sdkFacets.h"
#include "sdk/geometry/sdkGeneralOptions.h"
#include "sdk/geometry/sdkHealing.h"
#include "sdk/geometry/sdkRigidPlaces.h"
#include "sdk/geometry/sdkUnbounded.h"

#include <BRep_Tool.hxx>
#include <Message_ProgressScope.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <utility>

namespace {

bool has_loose_edge(TopoDS_Shape const & shape, double tolerance)
{
    for (TopExp_Explorer explorer(shape, TopAbs_EDGE); explorer.More(); explorer.Next()) {
        if (BRep_Tool::Tolerance(TopoDS::Edge(explorer.Current())) > tolerance) {
            return true;
        }
    }
    return false;
}

} // namespace

sdkBrepOutput::sdkBrepOutput(std::string format, std::string prefix, sdkContext & context)
    : m_format(std::move(format)), m_prefix(std::move(prefix)), m_context(context)
{
}

sdkResult sdkBrepOutput::prepare(sdkDocument & document, Message_ProgressRange const & range)
{
    Message_ProgressScope scope(range, nullptr, 3);
    bool const had_something = !document.empty();
    sdk_make_places_rigid(document);
    sdk_filter_by_options(document, document.parts(), m_context);
    // IGES has an entity for a plane without end.
    auto const endless = sdk_drop_unbounded(document, m_format, m_context);
    m_count = document.count_entities();
    if (m_count.entities() == 0 && endless > 0) {
        return sdkResult::completed();
    }
    if (m_count.entities() == 0) {
        auto const kinds = sdk_entity_kinds(m_context.options());
        sdk_report_nothing(m_context, had_something && !(kinds.wireframe && kinds.surfaces));
        return sdkResult::completed();
    }
    if (m_count.facets_only > 0) {
        if (auto result = replace_facets(document, scope.Next()); !result) {
            return result;
        }
    }
    if (m_count.curves > 0 && m_context.options().text(m_prefix + "WriteCurves") == "polyline") {
        make_polylines(document, scope.Next());
    }
    sdk_convert_offset_curves(document);
    if (auto const edges = sdk_drop_zero_edges(document); edges > 0) {
        m_context.reporter().output("exchange::%d edges without length were left out", edges);
    }
    tighten_edges(document, scope.Next());
    return scope.UserBreak() ? sdkResult::cancelled() : sdkResult::completed();
}

sdkResult sdkBrepOutput::replace_facets(sdkDocument & document, Message_ProgressRange const & range)
{
    std::string const option = m_prefix + "WriteFaceted";
    if (m_context.options().text(option) == "refuse") {
        return sdkResult::write_error(sdk_facets_refused(sdk_facet_parts(document), m_format, option));
    }
    sdkFacetOptions facets;
    facets.merge_coplanar = m_context.options().boolean(m_prefix + "WriteMergeFacets");
    facets.max_option = m_prefix + "WriteMaxFacets";
    facets.max_facets = m_context.options().integer(facets.max_option);
    auto const counts = sdk_make_facets(document, facets, range);
    if (!counts.refusal.empty()) {
        return sdkResult::write_error(counts.refusal);
    }
    if (counts.cancelled) {
        return sdkResult::cancelled();
    }
    if (counts.doubled > 0) {
        m_context.reporter().output("geometry::%d triangles are there more than once and are taken once",
                                    counts.doubled);
    }
    m_context.reporter().output("exchange::%d triangles of %d parts became %d plane faces in %d solids and "
                                "%d open shells",
                                counts.triangles, counts.parts, counts.faces, counts.solids, counts.shells);
    m_count = document.count_entities();
    return sdkResult::completed();
}

void sdkBrepOutput::make_polylines(sdkDocument & document, Message_ProgressRange const & range)
{
    auto const counts =
        sdk_make_polylines(document, document.parts(), sdk_polyline_tolerances(m_context.options()), range);
    if (counts.curves > 0) {
        m_context.reporter().output("exchange::%d curves became polylines of %d segments", counts.curves,
                                    counts.segments);
        m_count = document.count_entities();
    }
}

void sdkBrepOutput::tighten_edges(sdkDocument & document, Message_ProgressRange const & range)
{
    sdkHealingOptions healing;
    healing.max_tolerance = m_context.options().real("vmrTolCurveOnSurface3d");
    healing.precision = std::min(healing.precision, healing.max_tolerance);
    healing.keep = [](TopoDS_Shape const & before, TopoDS_Shape const & after) {
        return sdk_no_worse(before, after);
    };
    TDF_LabelSequence loose;
    for (auto const & part : document.parts()) {
        if (has_loose_edge(XCAFDoc_ShapeTool::GetShape(part), healing.max_tolerance)) {
            loose.Append(part);
        }
    }
    if (loose.IsEmpty()) {
        return;
    }
    auto const counts = sdk_heal(document, loose, healing, range);
    m_context.reporter().output("exchange::%d parts had edges further than %g mm from their surfaces and "
                                "were repaired; %d such edges "
                                "are left",
                                loose.Length(), healing.max_tolerance, counts.loose_edges);
    if (counts.taken_back > 0) {
        m_context.reporter().output("exchange::%d repairs were taken back because edges, volume or area were "
                                    "farther off afterwards",
                                    counts.taken_back);
    }
    m_count = document.count_entities();
}
