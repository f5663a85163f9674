#include "iges/igesReader.h"

#include "iges/igesAccount.h"
#include "iges/igesCounts.h"
#include "iges/igesFile.h"
#include "iges/igesNames.h"
#include "iges/igesPlaces.h"
#include "iges/igesSewing.h"
#include "iges/igesStructure.h"
#include "iges/igesUnbounded.h"
#include "iges/igesUnits.h"
#include "iges/igesVisibility.h"
#include "sdk/exchange/sdkChecks.h"
#include "sdk/exchange/sdkShapeProcessing.h"
#include "sdk/geometry/sdkGeneralOptions.h"
#include "sdk/sdkFiles.h"
#include "sdk/sdkInputFile.h"

#include <IGESControl_Controller.hxx>
#include <IGESData_GlobalSection.hxx>
#include <IGESData_IGESModel.hxx>
#include <Message_ProgressScope.hxx>
#include <TCollection_HAsciiString.hxx>
#include <XSControl_WorkSession.hxx>

namespace {

std::string unit_of(IGESData_GlobalSection const & section)
{
    if (auto const * unit = sdk_length_unit(section.UnitValue() * section.CascadeUnit())) {
        return std::string(unit->name);
    }
    return section.UnitName().IsNull() ? "?" : section.UnitName()->ToCString();
}

} // namespace

igesReader::igesReader(sdkContext & context) : m_context(context)
{
    auto const & options = context.options();
    IGESControl_Controller::Init();
    m_reader.emplace();
    m_reader->SetReadVisible(options.boolean("igesReadVisibleOnly"));
    m_reader->SetNameMode(options.boolean("igesReadNames"));
    m_reader->SetColorMode(options.boolean("igesReadColours"));
    m_reader->SetLayerMode(options.boolean("igesReadLayers"));
}

sdkResult igesReader::parse(std::string const & path, Message_ProgressRange const & range)
{
    sdkInputFile file;
    sdkText failure;
    if (!file.open(path, failure)) {
        return sdkResult::read_error(failure);
    }
    if (auto result = check_text(file); !result) {
        return result;
    }
    if (auto result = check_parameters(file); !result) {
        return result;
    }
    Message_ProgressScope scope(range, nullptr, 1);
    auto const status = m_reader->ReadFile(path.c_str());
    auto const model = m_reader->IGESModel();
    if (status != IFSelect_RetDone || model.IsNull() || model->NbEntities() == 0) {
        return sdkResult::read_error(
            sdkText("iges::%s has no entities that can be read; export it again from the "
                    "program that made it",
                    m_context.file()));
    }
    settle_unit();
    iges_decode_names(model, m_context.options().text("igesReadCodePage"));
    if (!m_context.account().read_back()) {
        sdk_report_load(m_reader->WS(), m_context);
    }
    m_damaged = iges_take_out_damage(m_reader->WS(), m_bad_numbers, m_context);
    if (auto result = iges_check_structure(model, m_reader->WS()->Graph(), m_context.file()); !result) {
        return result;
    }
    return scope.UserBreak() ? sdkResult::cancelled() : sdkResult::completed();
}

sdkResult igesReader::check_text(sdkInputFile const & file) const
{
    igesFile const text(file.text());
    auto const & name = m_context.file();
    if (text.other_form) {
        return sdkResult::read_error(sdkText(
            "iges::%s is in the compressed or binary form of IGES, which is not supported; export it in the "
            "form with records of 80 characters",
            name));
    }
    if (!text.begins) {
        return sdkResult::read_error(sdkText(
            "iges::%s is not an IGES file: column 73 of its first line is not S; choose its real format",
            name));
    }
    if (!text.is_whole()) {
        return sdkResult::read_error(
            sdkText("iges::%s is cut off after %d of its directory records, with no complete "
                    "end; copy it or export it again",
                    name, text.directory_records));
    }
    return sdkResult::completed();
}

sdkResult igesReader::check_parameters(sdkInputFile const & file)
{
    sdkResult result = sdkResult::completed();
    iges_each_parameters(file.text(), [&](igesParameters const & parameters) {
        if (auto const count = iges_lying_count(parameters); count && result) {
            result = sdkResult::read_error(sdkText(
                "iges::%s, D%d: the entity of type %d has the count %d and only %d parameters; export the "
                "file again",
                m_context.file(), parameters.directory, parameters.type, *count, parameters.count));
        }
        if (!parameters.bad.empty()) {
            m_bad_numbers.emplace(parameters.directory, parameters.bad.substr(0, 40));
        }
    });
    return result;
}

void igesReader::settle_unit()
{
    auto const model = m_reader->IGESModel();
    auto section = model->GlobalSection();
    auto & reporter = m_context.reporter();
    reporter.output("iges::Length unit of the file is %s", unit_of(section));
    iges_note_scale(section, m_context);
    auto const * const wanted = sdk_length_unit(m_context.options().text("igesReadUnits"));
    if (wanted) {
        section.SetUnitFlag(iges_unit_flag(*wanted));
        section.SetUnitName(new TCollection_HAsciiString(std::string(wanted->toolkit).c_str()));
        model->SetGlobalSection(section);
        reporter.output("iges::Its lengths are taken to be in %s, as the options ask", wanted->name);
    } else {
        iges_note_unknown_unit(section, m_context);
    }
}

void igesReader::hide_blanked(sdkDocument & document)
{
    auto const hidden = iges_hide_blanked(m_reader->WS(), document);
    if (hidden > 0 && m_reader->GetReadVisible()) {
        m_context.account().add(
            {.weight = sdkWeight::note,
             .kind = "hidden",
             .part = {},
             .place = {},
             .source = static_cast<double>(hidden),
             .output = 0,
             .text = sdkText("iges::%s: %d blanked entities are left out, as the options ask",
                             m_context.file(), hidden)});
    }
}

sdkResult igesReader::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    auto const & options = m_context.options();
    TDF_LabelSequence const before = document.free_shapes();
    sdkShapeProcessing const processing(sdk_reading_healing(m_context, "igesReadHealing"));
    Handle(TDocStd_Document) handle = document.handle();
    m_reader->add_own();
    m_reader->remove(m_damaged);
    bool const sewing = options.boolean("igesReadSolids");
    Message_ProgressScope scope(range, nullptr, 10);
    bool const transferred =
        m_reader->NbRootsForTransfer() > 0 && m_reader->Transfer(handle, scope.Next(sewing ? 7 : 10));
    if (scope.UserBreak()) {
        return sdkResult::cancelled();
    }
    if (!m_context.account().read_back()) {
        sdk_report_transfer(m_reader->WS(), {}, m_context);
        iges_keep_account(m_reader->WS(), m_reader->GetReadVisible(), m_damaged, m_context);
    }
    hide_blanked(document);
    iges_drop_unbounded(document, document.free_shapes_since(before));
    if (!transferred || document.free_shapes_since(before).IsEmpty()) {
        return sdkResult::read_error(sdkText("iges::%s has no shapes that can be read", m_context.file()));
    }
    auto const name = sdk_file_stem(m_context.file());
    iges_settle_places(document, document.free_shapes_since(before), name);
    if (sewing) {
        igesSewing sewer(document, options.real("igesReadSewTolerance"));
        sewer.sew(document.free_shapes_since(before), name, scope.Next(3));
        if (scope.UserBreak()) {
            return sdkResult::cancelled();
        }
        if (sewer.solids() + sewer.shells() > 0) {
            m_context.reporter().output("iges::%d faces were sewn into %d solids and %d open shells",
                                        sewer.faces(), sewer.solids(), sewer.shells());
        }
    }
    sdk_filter_by_options(document, sdkDocument::parts_of(document.free_shapes_since(before)), m_context);
    return sdkResult::completed();
}
