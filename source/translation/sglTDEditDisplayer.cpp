#include "sglTDEditDisplayer.h"

#include "controls/sglShownText.h"
#include "wxt/wxtStringConverter.h"

namespace {

constexpr int level = 2;

} // namespace

sglTDEditDisplayer::sglTDEditDisplayer(sdbTranslationData const * record, vmrabsAppInfo const * info,
                                       wxTextCtrl * control)
    : sglTranslationDataDisplayer(record, info), m_control(control)
{
}

void sglTDEditDisplayer::display_text(utString const & text)
{
    indent_and_display(text);
}

void sglTDEditDisplayer::increment_depth(utString const & text)
{
    indent_and_display(text);
    m_depth += level;
}

void sglTDEditDisplayer::decrement_depth()
{
    m_depth -= level;
}

void sglTDEditDisplayer::indent_and_display(utString const & text)
{
    m_control->AppendText(wxString(' ', static_cast<std::size_t>(m_depth)) +
                          sgl_shown_text(wxtStringConverter::to_wx(text)) + "\r\n");
}
