#include "sdk/geometry/sdkGeneralOptions.h"

#include <numbers>

namespace {

bool flag(sdkOptions const & options, char const * name)
{
    return !options.declares(name) || options.boolean(name);
}

void take(sdkOptions const & options, char const * name, double & value)
{
    if (options.declares(name)) {
        value = options.real(name);
    }
}

} // namespace

sdkEntityKinds sdk_entity_kinds(sdkOptions const & options)
{
    return {flag(options, "vmrOptProcessWireframe"), flag(options, "vmrOptProcessSurfaces")};
}

sdkPolylineTolerances sdk_polyline_tolerances(sdkOptions const & options)
{
    sdkPolylineTolerances tolerances;
    take(options, "vmrTolPolygonizeCurve2d", tolerances.planar);
    take(options, "vmrTolPolygonizeCurve3d", tolerances.spatial);
    return tolerances;
}

sdkTessellationTolerances sdk_tessellation_tolerances(sdkOptions const & options, double angle)
{
    sdkTessellationTolerances tolerances;
    take(options, "vmrTolTriangulate3d", tolerances.linear);
    tolerances.angular = angle * std::numbers::pi / 180;
    return tolerances;
}

sdkLengthUnit const & sdk_output_unit(sdkOptions const & options)
{
    auto const * unit =
        options.declares("vmrOptOutputUnits") ? sdk_length_unit(options.text("vmrOptOutputUnits")) : nullptr;
    return unit ? *unit : *sdk_length_unit("mm");
}

sdkFilterCounts sdk_filter_by_options(sdkDocument & document, TDF_LabelSequence const & parts,
                                      sdkContext const & context)
{
    auto const counts = sdk_filter_entities(document, parts, sdk_entity_kinds(context.options()));
    sdk_report_dropped(counts.dropped, context.reporter());
    return counts;
}

void sdk_report_dropped(sdkEntityCount const & dropped, sdkReporter & reporter)
{
    if (dropped.faces > 0) {
        reporter.output("geometry::%d faces are left out because surfaces are not to be processed",
                        dropped.faces);
    }
    if (dropped.curves + dropped.points > 0) {
        reporter.output(
            "geometry::%d curves and %d points are left out because wireframe is not to be processed",
            dropped.curves, dropped.points);
    }
}

void sdk_report_nothing(sdkContext const & context, bool filtered)
{
    if (filtered) {
        context.reporter().output(
            "geometry::Nothing is left to write to %s: the options leave out all there is", context.file());
    } else {
        context.reporter().output(
            "geometry::There is nothing to write to %s: the input has no geometry that the format "
            "can hold",
            context.file());
    }
}
