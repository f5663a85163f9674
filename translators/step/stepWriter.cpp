#include "step/stepWriter.h"

#include "sdk/exchange/sdkBrepOutput.h"
#include "sdk/exchange/sdkBrokenSeams.h"
#include "sdk/exchange/sdkChecks.h"
#include "sdk/exchange/sdkShapeProcessing.h"
#include "sdk/geometry/sdkRigidPlaces.h"
#include "sdk/sdkFiles.h"
#include "sdk/sdkFlatten.h"
#include "sdk/sdkLengthUnit.h"
#include "sdk/sdkOutputFile.h"
#include "sdk/sdkStated.h"
#include "sdk/sdkVisibility.h"
#include "step/stepFile.h"
#include "step/stepHeader.h"
#include "step/stepInstanceStyles.h"
#include "step/stepLayers.h"
#include "step/stepText.h"
#include "step/stepTextEncoding.h"
#include "step/stepValidationOutput.h"
#include "step/stepVisibility.h"

#include <Message_ProgressScope.hxx>
#include <STEPControl_Controller.hxx>
#include <StepData_Protocol.hxx>
#include <StepData_StepModel.hxx>
#include <Transfer_FinderProcess.hxx>
#include <XSControl_TransferWriter.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <ostream>
#include <string_view>

namespace {

char const * schema_of(std::string const & option)
{
    if (option == "AP203") {
        return "AP203";
    }
    return option == "AP242" ? "AP242DIS" : "AP214IS";
}

} // namespace

stepWriter::stepWriter(sdkContext & context) : m_context(context)
{
    auto const & options = context.options();
    STEPControl_Controller::Init();
    m_statics.set("write.step.schema", schema_of(options.text("stepWriteSchema")));
    m_statics.set("write.step.unit",
                  std::string(sdk_length_unit(options.text("vmrOptOutputUnits"))->toolkit));
    m_statics.set("write.step.product.name", sdk_file_stem(context.file()));
    if (double const precision = options.real("stepWritePrecision"); precision > 0.0) {
        m_statics.set("write.precision.mode", "User");
        m_statics.set("write.precision.val", precision);
    }
    m_writer.emplace();
    m_writer->SetNameMode(options.boolean("stepWriteNames"));
    m_writer->SetColorMode(options.boolean("stepWriteColours"));
    m_writer->SetLayerMode(options.boolean("stepWriteLayers"));
    m_writer->SetPropsMode(Standard_False);
    auto & promise = context.promise();
    promise.made = true;
    promise.holds.structure = options.text("stepWriteStructure") == "assembly";
    promise.holds.names = options.boolean("stepWriteNames");
    promise.holds.colours = options.boolean("stepWriteColours");
    promise.holds.layers = options.boolean("stepWriteLayers");
    promise.exact_curves = options.text("stepWriteCurves") == "exact";
    // Whoever reads the output back measures it himself.
    promise.read_back["stepReadValidation"] = "false";
}

sdkResult stepWriter::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    auto const & options = m_context.options();
    auto & reporter = m_context.reporter();
    sdk_make_places_rigid(document);
    if (options.text("stepWriteStructure") == "flat") {
        if (int const assemblies = sdk_flatten(document, document.free_shapes(), sdkPlacing::geometry);
            assemblies > 0) {
            reporter.output("step::%s: %d assemblies were taken apart", m_context.file(), assemblies);
        }
    }
    auto const hidden_instances = sdk_hidden_instances(document);
    // The toolkit crashes on an instance that is hidden.
    sdk_hide_parts_for_instances(document);
    Message_ProgressScope scope(range, nullptr, 10);
    sdkBrepOutput output("STEP", "step", m_context);
    if (auto result = output.prepare(document, scope.Next()); !result || output.count().entities() == 0) {
        return result;
    }
    auto const entities = output.count().entities();
    sdk_mend_broken_seams(document);
    sdkShapeProcessing const processing(sdkHealing::standard);
    bool const transferred = m_writer->Transfer(document.handle(), STEPControl_AsIs, nullptr, scope.Next(9));
    if (scope.UserBreak()) {
        return sdkResult::cancelled();
    }
    auto const process = m_writer->ChangeWriter().WS()->TransferWriter()->FinderProcess();
    auto const failed = std::min(sdk_report_transfer(process, m_context), entities);
    reporter.failed(failed);
    if (!transferred) {
        return sdkResult::write_error(
            sdkText("step::The shapes for %s could not be converted to STEP", m_context.file()));
    }
    reporter.processed(entities - failed);
    write_visibility(document, hidden_instances);
    add_validation(document);
    m_annotations = step_write_annotations(m_writer->ChangeWriter().WS(), document, m_context);
    reporter.output("step::Length unit of the output is %s",
                    sdk_length_unit(options.text("vmrOptOutputUnits"))->name);
    return sdkResult::completed();
}

void stepWriter::add_validation(sdkDocument const & document)
{
    auto const & options = m_context.options();
    auto const & wanted = options.text("stepWriteValidation");
    auto const stated = sdk_stated(document);
    // The first edition of AP203 has no entities for them.
    bool const held = options.text("stepWriteSchema") != "AP203";
    if (held && (wanted == "always" || (wanted == "stated" && stated > 0))) {
        auto const products = step_add_validation(m_writer->ChangeWriter().WS(), document);
        if (products > 0) {
            m_context.reporter().output(
                "step::Volume, area and centroid of %d products were measured and are "
                "stated in the output",
                products);
        }
    } else if (stated > 0 && held) {
        m_context.reporter().output(
            "step::The volumes, areas and centroids that the source states for %d products are lost; to have "
            "them written change the option stepWriteValidation",
            stated);
    } else if (stated > 0) {
        m_context.reporter().output("step::AP203 files hold no validation properties: the volumes, areas and "
                                    "centroids that the source "
                                    "states for %d products are lost",
                                    stated);
    }
}

void stepWriter::write_visibility(sdkDocument const & document, TDF_LabelSequence const & hidden_instances)
{
    auto const session = m_writer->ChangeWriter().WS();
    stepInstanceStyles styles(session);
    if (m_context.options().boolean("stepWriteLayers")) {
        step_write_layers_of_instances(session->Model(), document, styles);
    }
    if (auto const seen = step_write_visibility(session, document, hidden_instances, styles); seen > 0) {
        m_context.account().add(
            {.weight = sdkWeight::difference,
             .kind = "hidden",
             .part = {},
             .place = {},
             .source = static_cast<double>(seen),
             .output = 0.0,
             .text = sdkText("step::%d hidden instances are seen in %s", seen, m_context.file())});
    }
}

sdkResult stepWriter::write(std::string const & path, Message_ProgressRange const & range)
{
    auto & writer = m_writer->ChangeWriter();
    auto const model = writer.Model();
    auto const & options = m_context.options();
    stepHeader{sdk_file_name(m_context.file()), options.text("stepWriteAuthor"),
               options.text("stepWriteOrganisation"), m_annotations.schema}
        .apply(model);

    sdkOutputFile file(path, range);
    stepTextEncoding encoding(file);
    std::ostream stream(&encoding);
    step_write_text(model, Handle(StepData_Protocol)::DownCast(writer.WS()->Protocol()),
                    m_annotations.definitions, stream);
    encoding.finish();
    auto result = file.close(m_context.file());
    m_context.promise().checked = result && sdk_file_passes(path, [](std::string_view content) {
                                      return stepFile(content).is_whole();
                                  });
    return result;
}
