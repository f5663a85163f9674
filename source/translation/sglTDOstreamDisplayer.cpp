#include "sglTDOstreamDisplayer.h"

namespace {

constexpr int level = 2;

} // namespace

sglTDOstreamDisplayer::sglTDOstreamDisplayer(sdbTranslationData const * record, vmrabsAppInfo const * info,
                                             std::ostream * stream)
    : sglTranslationDataDisplayer(record, info), m_stream(stream)
{
}

void sglTDOstreamDisplayer::display_text(utString const & text)
{
    indent_and_display(text);
}

void sglTDOstreamDisplayer::increment_depth(utString const & text)
{
    indent_and_display(text);
    m_depth += level;
}

void sglTDOstreamDisplayer::decrement_depth()
{
    m_depth -= level;
}

void sglTDOstreamDisplayer::indent_and_display(utString const & text)
{
    *m_stream << std::string(static_cast<std::size_t>(m_depth), ' ') << text.view() << std::endl;
}
