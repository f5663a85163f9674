#include "iges/igesReader.h"

#include <IGESControl_Controller.hxx>
#include <Message_ProgressScope.hxx>

igesReader::igesReader(sdkContext & context) : m_context(context)
{
    IGESControl_Controller::Init();
    m_reader.emplace();
}

sdkResult igesReader::parse(std::string const & path, Message_ProgressRange const & range)
{
    if (m_reader->ReadFile(path.c_str()) != IFSelect_RetDone) {
        return sdkResult::read_error(sdkText("iges::%s is not a valid IGES file", m_context.file()));
    }
    return range.UserBreak() ? sdkResult::cancelled() : sdkResult::completed();
}

sdkResult igesReader::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    Handle(TDocStd_Document) handle = document.handle();
    Message_ProgressScope scope(range, nullptr, 1);
    bool const transferred = m_reader->Transfer(handle, scope.Next());
    if (scope.UserBreak()) {
        return sdkResult::cancelled();
    }
    if (!transferred) {
        return sdkResult::read_error(sdkText("iges::%s has no shapes", m_context.file()));
    }
    return sdkResult::completed();
}
