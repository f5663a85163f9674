#include "iges/igesWriter.h"

#include "sdk/exchange/sdkBrepOutput.h"
#include "sdk/exchange/sdkChecks.h"
#include "sdk/exchange/sdkShapeProcessing.h"
#include "sdk/sdkFiles.h"
#include "sdk/sdkLengthUnit.h"
#include "sdk/sdkOutputFile.h"

#include <IGESControl_Controller.hxx>
#include <Message_ProgressScope.hxx>
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
    m_statics.set("write.iges.header.author", options.text("igesWriteAuthor"));
    m_statics.set("write.iges.header.company", options.text("igesWriteOrganisation"));
    if (double const precision = options.real("igesWritePrecision"); precision > 0.0) {
        m_statics.set("write.precision.mode", "User");
        m_statics.set("write.precision.val", precision);
    }
    m_writer.emplace();
    m_writer->SetNameMode(options.boolean("igesWriteNames"));
    m_writer->SetColorMode(options.boolean("igesWriteColours"));
    m_writer->SetLayerMode(options.boolean("igesWriteLayers"));
}

sdkResult igesWriter::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    auto & reporter = m_context.reporter();
    Message_ProgressScope scope(range, nullptr, 10);
    sdkBrepOutput output("IGES", "iges", m_context);
    if (auto result = output.prepare(document, scope.Next()); !result || output.count().entities() == 0) {
        return result;
    }
    auto const entities = output.count().entities();
    sdkShapeProcessing const processing(sdkHealing::standard);
    bool const transferred = m_writer->Transfer(document.handle(), scope.Next(9));
    if (scope.UserBreak()) {
        return sdkResult::cancelled();
    }
    auto const failed = std::min(sdk_report_transfer(m_writer->TransferProcess(), m_context), entities);
    reporter.failed(failed);
    if (!transferred) {
        return sdkResult::write_error(
            sdkText("iges::The shapes for %s could not be converted to IGES", m_context.file()));
    }
    reporter.processed(entities - failed);
    reporter.output("iges::Length unit of the output is %s",
                    sdk_length_unit(m_context.options().text("vmrOptOutputUnits"))->english);
    return sdkResult::completed();
}

sdkResult igesWriter::write(std::string const & path, Message_ProgressRange const & range)
{
    sdkOutputFile file(path, range);
    std::ostream stream(&file);
    m_writer->Write(stream);
    return file.close(m_context.file());
}
