#include "iges/igesWriter.h"

#include "iges/igesColours.h"
#include "iges/igesFile.h"
#include "iges/igesNames.h"
#include "iges/igesPoints.h"
#include "iges/igesVisibility.h"
#include "sdk/exchange/sdkBrepOutput.h"
#include "sdk/exchange/sdkChecks.h"
#include "sdk/exchange/sdkInexactSeams.h"
#include "sdk/exchange/sdkLooseWires.h"
#include "sdk/exchange/sdkShapeProcessing.h"
#include "sdk/exchange/sdkTurnedEllipses.h"
#include "sdk/exchange/sdkTurnedFaces.h"
#include "sdk/geometry/sdkLosses.h"
#include "sdk/sdkFiles.h"
#include "sdk/sdkFlatten.h"
#include "sdk/sdkLengthUnit.h"
#include "sdk/sdkMaterials.h"
#include "sdk/sdkOutputFile.h"
#include "sdk/sdkStated.h"

#include <IGESControl_Controller.hxx>
#include <IGESData_GlobalSection.hxx>
#include <IGESData_IGESModel.hxx>
#include <Message_ProgressScope.hxx>
#include <TCollection_HAsciiString.hxx>
#include <Transfer_FinderProcess.hxx>

#include <algorithm>
#include <ostream>

igesWriter::igesWriter(sdkContext & context) : m_context(context)
{
    auto const & options = context.options();
    IGESControl_Controller::Init();
    m_statics.set("write.iges.unit",
                  std::string(sdk_length_unit(options.text("vmrOptOutputUnits"))->toolkit));
    m_statics.set("write.iges.brep.mode", options.boolean("igesWriteSolids") ? "BRep" : "Faces");
    if (double const precision = options.real("igesWritePrecision"); precision > 0.0) {
        m_statics.set("write.precision.mode", "User");
        m_statics.set("write.precision.val", precision);
    }
    m_writer.emplace();
    m_writer->SetNameMode(options.boolean("igesWriteNames"));
    m_writer->SetColorMode(options.boolean("igesWriteColours"));
    m_writer->SetLayerMode(options.boolean("igesWriteLayers"));
    bool const solids = options.boolean("igesWriteSolids");
    auto & promise = context.promise();
    promise.made = true;
    promise.holds = {.structure = false,
                     .names = options.boolean("igesWriteNames"),
                     .colours = options.boolean("igesWriteColours"),
                     .layers = false, // levels have numbers in place of the names
                     .transparency = false,
                     .solids = solids};
    promise.ascii_names = true;
    promise.exact_curves = options.text("igesWriteCurves") == "exact";
    if (solids) {
        // What was written as a solid must come back as one by itself.
        promise.read_back["igesReadSolids"] = "false";
    }
}

sdkResult igesWriter::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    auto & reporter = m_context.reporter();
    Message_ProgressScope scope(range, nullptr, 10);
    sdkBrepOutput output("IGES", "iges", m_context);
    if (auto result = output.prepare(document, scope.Next()); !result || output.count().entities() == 0) {
        return result;
    }
    report_losses(document);
    report_colours(document);
    flatten(document);
    sdk_split_loose_wires(document);
    sdk_divide_turned_ellipses(document);
    sdk_mend_inexact_seams(document);
    if (m_context.promise().holds.solids) {
        sdk_turn_faces_in_shells(document);
    }
    auto const entities = document.count_entities().entities();
    sdkShapeProcessing const processing(sdkHealing::standard);
    bool const transferred = m_writer->Transfer(document.handle(), scope.Next(9));
    if (scope.UserBreak()) {
        return sdkResult::cancelled();
    }
    auto const & options = m_context.options();
    iges_describe_points(document, m_writer->TransferProcess(), m_writer->Model(),
                         {.names = options.boolean("igesWriteNames"),
                          .colours = options.boolean("igesWriteColours"),
                          .levels = options.boolean("igesWriteLayers")});
    blank_hidden(document);
    auto const failed = std::min(sdk_report_transfer(m_writer->TransferProcess(), m_context), entities);
    reporter.failed(failed);
    if (!transferred) {
        return sdkResult::write_error(
            sdkText("iges::The shapes for %s could not be converted to IGES", m_context.file()));
    }
    reporter.processed(entities - failed);
    reporter.output("iges::Length unit of the output is %s",
                    sdk_length_unit(m_context.options().text("vmrOptOutputUnits"))->name);
    return sdkResult::completed();
}

void igesWriter::report_losses(sdkDocument & document)
{
    auto const & options = m_context.options();
    auto & reporter = m_context.reporter();
    if (options.boolean("igesWriteNames")) {
        if (auto const names = iges_make_names_ascii(document); names > 0) {
            reporter.output(
                "iges::IGES files hold ASCII names only: %d names have underscores for other characters",
                names);
        }
    }
    if (auto const materials = sdk_count_materials(document); materials > 0) {
        m_context.reporter().output(
            "geometry::%s files hold no materials: the materials or densities of %d parts are lost", "IGES",
            materials);
    }
    if (auto const stated = sdk_stated(document); stated > 0) {
        reporter.output("geometry::%s files hold no validation properties: the volumes, areas and centroids "
                        "that the source states for %d products are lost",
                        "IGES", stated);
    }
    TDF_LabelSequence layers;
    document.layers()->GetLayerLabels(layers);
    if (!layers.IsEmpty() && options.boolean("igesWriteLayers")) {
        reporter.output("iges::IGES files hold no names of layers: %d layers became level numbers",
                        layers.Length());
    }
}

void igesWriter::report_colours(sdkDocument const & document)
{
    if (!m_context.options().boolean("igesWriteColours")) {
        return;
    }
    if (auto const transparent = iges_count_transparent(document); transparent > 0) {
        m_context.reporter().output("iges::IGES files hold no transparency: %d shapes become opaque",
                                    transparent);
    }
}

// The parts of an assembly keep their names, colours and levels only as separate entities.
void igesWriter::flatten(sdkDocument & document)
{
    auto const attributes = sdk_count_attributes(document);
    if (attributes.assemblies == 0) {
        return;
    }
    sdk_flatten(document, document.free_shapes(), sdkPlacing::compound);
    m_context.reporter().output("iges::IGES files hold no assembly structure: %d assemblies with %d "
                                "instances became %d separate shapes",
                                attributes.assemblies, attributes.instances, document.free_shapes().Length());
}

void igesWriter::blank_hidden(sdkDocument const & document)
{
    if (auto const visible = iges_blank_hidden(document, m_writer->TransferProcess()); visible > 0) {
        m_context.account().add(
            {.weight = sdkWeight::difference,
             .kind = "hidden",
             .part = {},
             .place = {},
             .source = static_cast<double>(visible),
             .output = 0,
             .text = sdkText("iges::%d hidden shapes are visible in %s", visible, m_context.file())});
    }
}

sdkResult igesWriter::write(std::string const & path, Message_ProgressRange const & range)
{
    sdkOutputFile file(path, range);
    fill_header();
    std::ostream stream(&file);
    m_writer->Write(stream);
    auto result = file.close(m_context.file());
    m_context.promise().checked =
        result && sdk_file_passes(path, [](std::string_view text) { return igesFile(text).is_whole(); });
    return result;
}

void igesWriter::fill_header()
{
    auto const text = [](std::string const & value) { return new TCollection_HAsciiString(value.c_str()); };
    auto const & options = m_context.options();
    auto const model = m_writer->Model();
    auto section = model->GlobalSection();
    section.SetFileName(text(sdk_file_name(m_context.file())));
    section.SetAuthorName(text(options.text("igesWriteAuthor")));
    section.SetCompanyName(text(options.text("igesWriteOrganisation")));
    model->SetGlobalSection(section);
}
