#include "s2s/s2sTranslationDetails.h"

namespace {

std::shared_ptr<s2sTranslationElements const> const & no_elements()
{
    static auto const elements = std::make_shared<s2sTranslationElements const>(
        s2sTranslatorElementscoPageArr(), s2sOutputTranslatorElements({}, nullptr, {}, nullptr, 0, {}));
    return elements;
}

} // namespace

s2sTranslationDetails::s2sTranslationDetails(s2sThreadStatus status)
    : m_status(status), m_elements(no_elements())
{
}

s2sTranslationDetails::s2sTranslationDetails(s2sTranslationElements const & elements)
    : m_elements(std::make_shared<s2sTranslationElements const>(elements))
{
}

void s2sTranslationDetails::finish(s2sThreadStatus status, int processed, int failed)
{
    m_status = status;
    m_processed = processed;
    m_failed = failed;
}
