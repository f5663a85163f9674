#include "s2s/s2sTranslationDetails.h"

#include <utility>

namespace {

std::shared_ptr<s2sTranslationElements const> const & no_elements()
{
    static auto const elements = std::make_shared<s2sTranslationElements const>(
        s2sTranslatorElementscoPageArr(), s2sOutputTranslatorElements({}, nullptr, {}, nullptr, 0, {}));
    return elements;
}

std::shared_ptr<s2sVerification const> const & no_verification()
{
    static auto const verification = std::make_shared<s2sVerification const>();
    return verification;
}

} // namespace

s2sTranslationDetails::s2sTranslationDetails(s2sThreadStatus status)
    : m_status(status), m_elements(no_elements()), m_verification(no_verification())
{
}

s2sTranslationDetails::s2sTranslationDetails(s2sTranslationElements const & elements)
    : m_elements(std::make_shared<s2sTranslationElements const>(elements)), m_verification(no_verification())
{
}

void s2sTranslationDetails::finish(s2sThreadStatus status, int processed, int failed,
                                   s2sVerification verification)
{
    m_status = status;
    m_processed = processed;
    m_failed = failed;
    // What nobody wants to have verified has mostly found nothing, and must not take memory.
    m_verification = verification.empty() ? no_verification()
                                          : std::make_shared<s2sVerification const>(std::move(verification));
}
