#include "step/stepReader.h"

#include "sdk/exchange/sdkChecks.h"
#include "sdk/exchange/sdkShapeProcessing.h"
#include "sdk/geometry/sdkGeneralOptions.h"
#include "sdk/sdkFlatten.h"
#include "step/stepActor.h"
#include "step/stepContextStyles.h"
#include "step/stepCopiedStyles.h"
#include "step/stepDamage.h"
#include "step/stepExternFiles.h"
#include "step/stepFile.h"
#include "step/stepInstances.h"
#include "step/stepInventory.h"
#include "step/stepLayers.h"
#include "step/stepMappings.h"
#include "step/stepOperators.h"
#include "step/stepProducts.h"
#include "step/stepShapeUnits.h"
#include "step/stepSolids.h"
#include "step/stepSourceFindings.h"
#include "step/stepStructure.h"
#include "step/stepStyleDamage.h"
#include "step/stepTextFaults.h"
#include "step/stepValidationCheck.h"
#include "step/stepWorkLibrary.h"

#include <Message_ProgressScope.hxx>
#include <STEPCAFControl_ExternFile.hxx>
#include <STEPControl_Controller.hxx>
#include <StepData_StepModel.hxx>
#include <StepGeom_CartesianPoint.hxx>
#include <StepGeom_CartesianTransformationOperator.hxx>
#include <StepShape_Face.hxx>
#include <StepShape_ShapeRepresentation.hxx>
#include <TCollection_HAsciiString.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <istream>
#include <vector>

namespace {

bool has_geometry(TDF_LabelSequence const & shapes)
{
    auto const parts = sdkDocument::parts_of(shapes);
    return std::any_of(parts.begin(), parts.end(), [](TDF_Label const & part) {
        return sdk_count_entities(XCAFDoc_ShapeTool::GetShape(part)).entities() > 0;
    });
}

} // namespace

stepReader::stepReader(sdkContext & context) : m_context(context)
{
    auto const & options = context.options();
    STEPControl_Controller::Init();
    m_statics.set("read.step.codepage", options.text("stepReadCodePage"));
    if (double const precision = options.real("stepReadPrecision"); precision > 0.0) {
        m_statics.set("read.precision.mode", "User");
        m_statics.set("read.precision.val", precision);
    }
    m_reader.emplace();
    m_reader->SetNameMode(options.boolean("stepReadNames"));
    m_reader->SetColorMode(options.boolean("stepReadColours"));
    m_reader->SetLayerMode(options.boolean("stepReadLayers"));
    m_reader->SetPropsMode(Standard_False);
    // Why they are not taken stands with stepLosses.
    m_reader->SetGDTMode(Standard_False);
    m_reader->SetViewMode(Standard_False);
}

sdkResult stepReader::parse(std::string const & path, Message_ProgressRange const & range)
{
    sdkInputFile file;
    sdkText failure;
    if (!file.open(path, failure)) {
        return sdkResult::read_error(failure);
    }
    if (auto result = check_text(file); !result) {
        return result;
    }
    file.advance(range);
    std::istream stream(&file);
    auto & reader = m_reader->ChangeReader();
    auto const faults = step_text_faults(file.text());
    reader.WS()->SetLibrary(new stepWorkLibrary(faults.empty_lists));
    auto const status = reader.ReadStream(path.c_str(), stream);
    if (file.cancelled()) {
        return sdkResult::cancelled();
    }
    if (status != IFSelect_RetDone || reader.Model().IsNull()) {
        return sdkResult::read_error(
            sdkText("step::%s breaks the rules of a STEP file and cannot be read; export it "
                    "again from the program that made it",
                    m_context.file()));
    }
    m_links = stepTextualLinks(reader.StepModel(), file.text());
    m_losses = step_count_losses(reader.StepModel());
    if (m_losses.has_pmi()) {
        m_pmi = std::make_shared<stepPmiSource>(file.text());
    }
    auto const completed = step_complete_operators(reader.StepModel(), file.text());
    auto const settled = step_settle_context_styles(reader.WS());
    auto const made_good = [&](auto const & entity) {
        return m_links.explain(entity) || completed.count(entity.get()) > 0 ||
               settled.count(entity.get()) > 0 ||
               (m_pmi && m_pmi->has(reader.StepModel()->IdentLabel(entity)));
    };
    sdk_report_load(reader.WS(), m_context, made_good);
    stepDamage damage(reader.WS(), faults.numbers, made_good, m_context);
    if (auto result = damage.take_out(); !result) {
        return result;
    }
    step_drop_damaged_styles(reader.WS());
    if (auto result = step_check_structure(reader.WS(), m_context.file()); !result) {
        return result;
    }
    if (!completed.empty()) {
        m_context.account().add(
            {.kind = "not-standard",
             .part = {},
             .place = {},
             .source = static_cast<double>(completed.size()),
             .text = sdkText("step::%s: %d transformations lack the second name and the description that the "
                             "standard gives them; they are read without",
                             m_context.file(), completed.size())});
    }
    if (auto result = check_transformations(); !result) {
        return result;
    }
    return range.UserBreak() ? sdkResult::cancelled() : sdkResult::completed();
}

sdkResult stepReader::check_text(sdkInputFile & file)
{
    stepFile const text(file.text());
    m_schema = text.schema;
    auto const & name = m_context.file();
    if (!text.begins) {
        return sdkResult::read_error(sdkText(
            "step::%s is not a STEP file: it does not begin with ISO-10303-21; choose its real format",
            name));
    }
    if (!text.sections_end) {
        return sdkResult::read_error(
            sdkText("step::%s is cut off: the end of its data is missing after %d bytes; "
                    "copy it or export it again",
                    name, file.text().size()));
    }
    // The parser does not know the mark.
    file.skip(text.mark);
    if (!text.ends) {
        m_context.reporter().error(
            "step::%s lacks its last line, END-ISO-10303-21; all data before it is read", name);
        // The parser wants the line, whole. The last section is closed again, as its end may be cut too.
        file.replace_end(text.last_section_end, "ENDSEC;\nEND-ISO-10303-21;\n");
    }
    if (m_context.options().text("stepReadCodePage") == "UTF8" && !text.is_utf8) {
        m_context.reporter().error(
            "step::%s has texts that are not in UTF-8; choose their code page with the option "
            "stepReadCodePage",
            name);
    }
    return sdkResult::completed();
}

sdkResult stepReader::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    auto const & options = m_context.options();
    if (m_reader->NbRootsForTransfer() == 0) {
        return without_shapes();
    }
    prepare_layers();
    TDF_LabelSequence const before = document.free_shapes();
    stepSourceFindings findings(document, m_context);
    sdkShapeProcessing const processing(sdk_reading_healing(m_context, "stepReadHealing"));
    Handle(TDocStd_Document) handle = document.handle();
    Message_ProgressScope scope(range, nullptr, 1);
    build_missing();
    bool const transferred = m_reader->Transfer(handle, scope.Next());
    if (scope.UserBreak()) {
        return sdkResult::cancelled();
    }
    if (!m_context.account().read_back()) {
        take_inventory();
    }
    step_style_copies(m_reader->Reader().WS(), m_copies, document, options);
    auto const shapes = document.shapes();
    stepInstances const instances(*m_reader, shapes);
    if (options.boolean("stepReadLayers")) {
        step_read_layers_of_instances(m_reader->Reader().Model(), instances, document);
    }
    auto const added = document.free_shapes_since(before);
    if (!transferred || !has_geometry(added)) {
        return without_shapes();
    }
    step_report_units(m_reader->Reader().Model(), m_context);
    findings.take(m_reader->Reader().WS(), instances, m_losses);
    if (m_pmi) {
        m_pmi->take_shapes(*m_reader);
        step_add_annotations(document, m_pmi);
    }
    step_check_validation(*m_reader, m_pmi.get(), document, m_context);
    if (options.text("stepReadStructure") == "flat") {
        if (int const assemblies = sdk_flatten(document, added, sdkPlacing::geometry); assemblies > 0) {
            m_context.reporter().output("step::%s: %d assemblies were taken apart", m_context.file(),
                                        assemblies);
        }
    }
    sdk_filter_by_options(document, sdkDocument::parts_of(document.free_shapes_since(before)), m_context);
    return sdkResult::completed();
}

void stepReader::build_missing()
{
    auto const & reader = m_reader->ChangeReader();
    auto const transfer = reader.WS()->TransferReader();
    auto const model = reader.StepModel();
    auto const process = transfer->TransientProcess();
    Handle(STEPControl_ActorRead) const actor = new stepActor(*process);
    transfer->SetActor(actor);
    if (!transfer->BeginTransfer()) {
        return;
    }
    stepProducts const products(model);
    stepSolids solids(model, actor, process, m_links.operands());
    stepMappings mappings(products, solids, actor, process);
    for (int number = 1; number <= model->NbEntities(); ++number) {
        mappings.build(Handle(StepShape_ShapeRepresentation)::DownCast(model->Value(number)));
    }
    actor->ResetUnits();
    m_copies = mappings.copies();
}

void stepReader::take_inventory()
{
    auto & reader = m_reader->ChangeReader();
    std::vector<Handle(Standard_Transient)> roots;
    for (int number = 1; number <= reader.NbRootsForTransfer(); ++number) {
        roots.push_back(reader.RootForTransfer(number));
    }
    stepInventory inventory(reader.WS(), m_links, m_context.file(), m_context);
    inventory.take(roots);
    take_external_inventories();
    auto const absent = step_lose_absent_files(*m_reader, m_context);
    sdk_report_transfer(reader.WS(), STANDARD_TYPE(StepShape_Face), m_context, [&](auto const & entity) {
        return inventory.has_lost(entity) || absent.count(entity.get()) > 0;
    });
}

// What is lost in files that hold parts of an assembly is lost in the assembly.
void stepReader::take_external_inventories()
{
    using Files = NCollection_DataMap<TCollection_AsciiString, Handle(STEPCAFControl_ExternFile)>;
    for (Files::Iterator file(m_reader->ExternFiles()); file.More(); file.Next()) {
        auto const & session = file.Value()->GetWS();
        if (file.Value()->GetLoadStatus() == IFSelect_RetDone && file.Value()->GetTransferStatus() &&
            !session.IsNull() && session != m_reader->Reader().WS() && !session->Model().IsNull()) {
            stepInventory(session, {}, file.Key().ToCString(), m_context).take({});
        }
    }
}

sdkResult stepReader::check_transformations() const
{
    // The toolkit follows the missing point without looking.
    auto const model = m_reader->Reader().Model();
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const transformation =
            Handle(StepGeom_CartesianTransformationOperator)::DownCast(model->Value(number));
        if (!transformation.IsNull() && transformation->LocalOrigin().IsNull()) {
            return sdkResult::read_error(sdkText(
                "step::%s, %s: the transformation has no origin that can be read; export the file without "
                "copied curves and surfaces (replicas)",
                m_context.file(), std::string(model->StringLabel(transformation)->ToCString())));
        }
    }
    return sdkResult::completed();
}

sdkResult stepReader::without_shapes() const
{
    auto const unknown = sdk_unknown_kinds(m_reader->Reader().WS());
    auto const & file = m_context.file();
    if (unknown.empty()) {
        return sdkResult::read_error(
            m_schema.empty()
                ? sdkText("step::%s has no shapes that can be read, and it names no schema", file)
                : sdkText("step::%s has no shapes that can be read; its schema is %s", file, m_schema));
    }
    if (m_schema.empty()) {
        return sdkResult::read_error(sdkText(
            "step::%s has no shapes that can be read; it names no schema, and it has entities of kinds "
            "that are not known: %s. Export it with exact geometry",
            file, unknown));
    }
    return sdkResult::read_error(
        sdkText("step::%s has no shapes that can be read; its schema is %s, and it "
                "has entities of kinds that are not known: %s. Export it with exact geometry",
                file, m_schema, unknown));
}

void stepReader::prepare_layers() const
{
    if (!m_context.options().boolean("stepReadLayers")) {
        return;
    }
    if (auto const nameless =
            step_prepare_layers(m_reader->Reader().Model(), m_reader->Reader().WS()->Graph());
        nameless > 1) {
        m_context.reporter().output("step::%d layers without a name become one", nameless);
    }
}
