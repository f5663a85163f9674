#include "brep/brepWriter.h"

#include "brep/brepFlatten.h"
#include "brep/brepHeader.h"
#include "sdk/geometry/sdkFacets.h"
#include "sdk/geometry/sdkGeneralOptions.h"
#include "sdk/geometry/sdkLosses.h"
#include "sdk/geometry/sdkMeasures.h"
#include "sdk/geometry/sdkRigidPlaces.h"
#include "sdk/geometry/sdkScale.h"
#include "sdk/sdkFiles.h"
#include "sdk/sdkOutputFile.h"
#include "sdk/sdkVisibility.h"

#include <BRepTools.hxx>
#include <BinTools.hxx>
#include <Message_ProgressScope.hxx>
#include <Standard_Failure.hxx>
#include <Standard_OutOfMemory.hxx>

#include <ostream>
#include <typeinfo>

brepWriter::brepWriter(sdkContext & context) : m_context(context)
{
    auto const & options = context.options();
    bool const nested = options.text("brepWriteStructure") == "nested";
    auto & promise = context.promise();
    promise.made = true;
    promise.holds = {
        .structure = nested, .names = false, .colours = false, .layers = false, .visibility = false};
    promise.exact_curves = options.text("brepWriteCurves") == "exact";
    promise.read_back["brepReadUnit"] = sdk_output_unit(options).name;
    if (nested) {
        promise.read_back["brepReadStructure"] = "assembly";
    }
}

sdkResult brepWriter::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    Message_ProgressScope scope(range, nullptr, 10);
    auto & reporter = m_context.reporter();
    auto const & options = m_context.options();
    sdk_make_places_rigid(document);
    bool const had_entities = document.count_entities().entities() > 0;
    sdk_filter_by_options(document, document.parts(), m_context);
    sdk_report_losses(document, m_context.promise().holds, "BREP", reporter);
    note_hidden(document);
    if (auto result = make_facets(document, scope.Next(4)); !result) {
        return result;
    }
    if (auto result = make_polylines(document, scope.Next()); !result) {
        return result;
    }
    auto const count = document.count_entities();
    if (count.entities() == 0) {
        sdk_report_nothing(m_context, had_entities);
        return sdkResult::completed();
    }
    auto const & unit = sdk_output_unit(options);
    m_shape =
        sdk_scaled(m_context.promise().holds.structure ? sdk_whole_shape(document) : brep_flattened(document),
                   1 / unit.millimetres);
    if (auto result = tessellate(unit.millimetres, scope.Next(4)); !result) {
        return result;
    }
    reporter.output("brep::%d faces, %d curves and %d points are written, with lengths in %s", count.faces,
                    count.curves, count.points, unit.name);
    reporter.processed(count.entities());
    scope.Next();
    return scope.UserBreak() ? sdkResult::cancelled() : sdkResult::completed();
}

void brepWriter::note_hidden(sdkDocument const & document)
{
    int const hidden = sdk_hidden_labels(document).Length();
    if (hidden > 0) {
        m_context.account().add(
            {.weight = sdkWeight::note,
             .kind = "hidden",
             .part = {},
             .place = {},
             .source = static_cast<double>(hidden),
             .output = 0,
             .text = sdkText("brep::BREP files hide nothing: %d hidden shapes are visible in %s", hidden,
                             m_context.file())});
    }
}

sdkResult brepWriter::make_facets(sdkDocument & document, Message_ProgressRange const & range)
{
    auto const & options = m_context.options();
    auto const & wanted = options.text("brepWriteFacets");
    if (wanted == "mesh") {
        tell_of_meshes(document,
                       "brep::%s: %d triangles have no surfaces and make no solid; set the option "
                       "%s to merged for solids",
                       "brepWriteFacets");
        return sdkResult::completed();
    }
    sdkFacetOptions facets;
    facets.merge_coplanar = wanted == "merged";
    facets.max_option = "brepWriteMaxFacets";
    facets.max_facets = options.integer(facets.max_option);
    auto const counts = sdk_make_facets(document, facets, range);
    if (!counts.refusal.empty()) {
        // The format can hold them as they are.
        tell_of_meshes(document,
                       "brep::%s: %d triangles stay without surfaces and make no solid, because "
                       "there are more of them than the option %s allows; raise it for solids",
                       facets.max_option);
        return sdkResult::completed();
    }
    if (counts.doubled > 0) {
        m_context.reporter().output("geometry::%d triangles are there more than once and are taken once",
                                    counts.doubled);
    }
    if (counts.triangles > 0) {
        m_context.reporter().output(
            "brep::%d triangles became %d plane faces in %d solids and %d open shells", counts.triangles,
            counts.faces, counts.solids, counts.shells);
    }
    return counts.cancelled ? sdkResult::cancelled() : sdkResult::completed();
}

// One finding for each part that is a mesh; `key` says name, triangles and option.
void brepWriter::tell_of_meshes(sdkDocument const & document, std::string_view key,
                                std::string const & option)
{
    for (auto const & part : sdk_facet_parts(document)) {
        auto const triangles = static_cast<double>(part.triangles);
        m_context.account().add({.weight = sdkWeight::note,
                                 .kind = "facets-only",
                                 .part = part.name,
                                 .place = {},
                                 .source = triangles,
                                 .output = triangles,
                                 .text = sdkText(key, part.name, part.triangles, option)});
    }
}

sdkResult brepWriter::make_polylines(sdkDocument & document, Message_ProgressRange const & range)
{
    auto const & options = m_context.options();
    if (options.text("brepWriteCurves") == "exact") {
        return sdkResult::completed();
    }
    auto const counts =
        sdk_make_polylines(document, document.parts(), sdk_polyline_tolerances(options), range);
    m_context.reporter().output("brep::%d curves became polylines of %d segments", counts.curves,
                                counts.segments);
    return counts.cancelled ? sdkResult::cancelled() : sdkResult::completed();
}

sdkResult brepWriter::tessellate(double millimetres_per_unit, Message_ProgressRange const & range)
{
    auto const & options = m_context.options();
    if (!options.boolean("brepWriteTriangulation")) {
        // What faces have besides triangles goes into the file without them; what they have only as triangles
        // stays.
        BRepTools::Clean(m_shape);
        return sdkResult::completed();
    }
    auto tolerances = sdk_tessellation_tolerances(options, options.real("brepAngularDeflection"));
    tolerances.linear /= millimetres_per_unit;
    auto const counts = sdk_tessellate(m_shape, tolerances, range);
    auto & reporter = m_context.reporter();
    reporter.output("brep::%d triangles go with %d faces", counts.triangles, counts.faces);
    if (counts.failed > 0) {
        reporter.error("brep::%d faces could not be tessellated; they are in the file without triangles",
                       counts.failed);
    }
    return counts.cancelled ? sdkResult::cancelled() : sdkResult::completed();
}

sdkResult brepWriter::write(std::string const & path, Message_ProgressRange const & range)
{
    auto const & options = m_context.options();
    Message_ProgressScope scope(range, nullptr, 1);
    sdkOutputFile file(path, scope.Next());
    std::ostream stream(&file);
    std::string reason;
    try {
        if (options.text("brepWriteForm") == "text") {
            auto const version =
                static_cast<TopTools_FormatVersion>(std::stoi(options.text("brepWriteTextVersion")));
            BRepTools::Write(m_shape, stream, Standard_True, Standard_False, version);
        } else {
            auto const version =
                static_cast<BinTools_FormatVersion>(std::stoi(options.text("brepWriteBinaryVersion")));
            BinTools::Write(m_shape, stream, Standard_True, Standard_False, version);
        }
    } catch (Standard_OutOfMemory const &) {
        throw;
    } catch (Standard_Failure const & failure) {
        reason = failure.DynamicType()->Name();
    } catch (std::bad_cast const &) {
        // Thrown when the disk is full, which the file knows better.
        reason = "the file takes no more data";
    }
    auto result = file.close(m_context.file());
    if (result && !reason.empty()) {
        return sdkResult::write_error(sdkText(
            "brep::%s could not be written: %s; try the other form of the format", m_context.file(), reason));
    }
    m_context.promise().checked = result && sdk_file_passes(path, brep_is_whole);
    return result;
}
