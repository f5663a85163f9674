#include "step/stepWriter.h"

#include "sdk/sdkFiles.h"

#include <Message_ProgressScope.hxx>
#include <STEPControl_Controller.hxx>

stepWriter::stepWriter(sdkContext & context) : m_context(context)
{
    STEPControl_Controller::Init();
    m_writer.emplace();
}

sdkResult stepWriter::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    Message_ProgressScope scope(range, nullptr, 1);
    bool const transferred = m_writer->Transfer(document.handle(), STEPControl_AsIs, nullptr, scope.Next());
    if (scope.UserBreak()) {
        return sdkResult::cancelled();
    }
    if (!transferred) {
        return sdkResult::write_error(sdkText("step::Nothing could be converted for %s", m_context.file()));
    }
    m_context.reporter().processed(document.count_entities().entities());
    return sdkResult::completed();
}

sdkResult stepWriter::write(std::string const & path, Message_ProgressRange const & range)
{
    Message_ProgressScope scope(range, nullptr, 1);
    m_writer->Write(path.c_str());
    return sdk_check_written(path, m_context.file(), 0);
}
