#include "step/stepReader.h"

#include <Message_ProgressScope.hxx>
#include <STEPControl_Controller.hxx>

stepReader::stepReader(sdkContext & context) : m_context(context)
{
    STEPControl_Controller::Init();
    m_reader.emplace();
}

sdkResult stepReader::parse(std::string const & path, Message_ProgressRange const & range)
{
    if (m_reader->ReadFile(path.c_str()) != IFSelect_RetDone) {
        return sdkResult::read_error(sdkText("step::%s is not a valid STEP file", m_context.file()));
    }
    return range.UserBreak() ? sdkResult::cancelled() : sdkResult::completed();
}

sdkResult stepReader::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    Handle(TDocStd_Document) handle = document.handle();
    Message_ProgressScope scope(range, nullptr, 1);
    bool const transferred = m_reader->Transfer(handle, scope.Next());
    if (scope.UserBreak()) {
        return sdkResult::cancelled();
    }
    if (!transferred) {
        return sdkResult::read_error(sdkText("step::%s has no shapes", m_context.file()));
    }
    return sdkResult::completed();
}
