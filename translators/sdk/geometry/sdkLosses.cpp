#include "sdk/geometry/sdkLosses.h"

#include "sdk/sdkMaterials.h"
#include "sdk/sdkStated.h"

namespace {

bool coloured(TDF_Label const & label)
{
    TDF_Label colour;
    for (auto const type : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf, XCAFDoc_ColorCurv}) {
        if (XCAFDoc_ColorTool::GetColor(label, type, colour)) {
            return true;
        }
    }
    return false;
}

void add_attributes(sdkDocument const & document, TDF_Label const & label, sdkAttributeCounts & counts)
{
    TDF_LabelSequence layers;
    document.layers()->GetLayers(label, layers);
    counts.coloured += coloured(label) ? 1 : 0;
    counts.layered += layers.IsEmpty() ? 0 : 1;
    counts.named += sdkDocument::name(label).empty() ? 0 : 1;
}

} // namespace

sdkAttributeCounts sdk_count_attributes(sdkDocument const & document)
{
    sdkAttributeCounts counts;
    TDF_LabelSequence all;
    document.shapes()->GetShapes(all);
    for (auto const & label : all) {
        add_attributes(document, label, counts);
        TDF_LabelSequence inner;
        if (XCAFDoc_ShapeTool::IsAssembly(label)) {
            XCAFDoc_ShapeTool::GetComponents(label, inner);
            ++counts.assemblies;
            counts.instances += inner.Length();
        } else {
            XCAFDoc_ShapeTool::GetSubShapes(label, inner);
        }
        auto const named = counts.named;
        for (auto const & one : inner) {
            add_attributes(document, one, counts);
        }
        if (XCAFDoc_ShapeTool::IsAssembly(label)) {
            // An instance repeats the name of what it places more often than not.
            counts.named = named;
        }
    }
    return counts;
}

std::int64_t sdk_report_losses(sdkDocument const & document, sdkCapabilities const & capabilities,
                               std::string_view format, sdkReporter & reporter)
{
    auto const attributes = sdk_count_attributes(document);
    auto const entities = document.count_entities();
    auto const report = [&](bool held, std::string_view key, std::int64_t count) {
        if (!held && count > 0) {
            reporter.output(key, format, count);
        }
    };
    if (!capabilities.structure && attributes.assemblies > 0) {
        reporter.output(
            "geometry::%s files hold no assembly structure: %d assemblies with %d instances are flattened",
            format, attributes.assemblies, attributes.instances);
    }
    report(capabilities.names, "geometry::%s files hold no names: %d names are lost", attributes.named);
    report(capabilities.colours, "geometry::%s files hold no colours: the colours of %d shapes are lost",
           attributes.coloured);
    report(capabilities.layers, "geometry::%s files hold no layers: the layers of %d shapes are lost",
           attributes.layered);
    report(false, "geometry::%s files hold no materials: the materials or densities of %d parts are lost",
           sdk_count_materials(document));
    report(
        false,
        "geometry::%s files hold no validation properties: the volumes, areas and centroids that the source "
        "states for %d products are lost",
        sdk_stated(document));
    report(capabilities.surfaces, "geometry::%s files hold no surfaces: %d faces become triangles",
           entities.faces - entities.facets_only);
    report(capabilities.curves, "geometry::%s files hold no curves: %d curves are left out", entities.curves);
    report(capabilities.points, "geometry::%s files hold no points: %d points are left out", entities.points);
    return (capabilities.curves ? 0 : entities.curves) + (capabilities.points ? 0 : entities.points);
}
