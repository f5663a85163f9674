#include "sglResourceWidget.h"

#include "sglResourceOptionsPage.h"
#include "sglResourceString.h"

#include "wxt/wxtStringConverter.h"

#include <wx/window.h>

namespace {

/// A line of a tooltip ends at the first space behind this column.
constexpr int tooltip_columns = 151;

std::string wrapped(utString const & text)
{
    std::string result;
    int column = 0;
    for (char const letter : text.view()) {
        bool const ends_line = letter == '\n' || (letter == ' ' && column >= tooltip_columns);
        result += ends_line ? '\n' : letter;
        bool const begins_character = (static_cast<unsigned char>(letter) & 0xC0) != 0x80;
        column = ends_line ? 0 : column + begins_character;
    }
    return result;
}

} // namespace

sglResourceWidget::sglResourceWidget(sglResourceDetails const & details, sglResourceOptionsPage * page)
    : m_details(details), m_page(page)
{
}

sglResourceWidget::~sglResourceWidget() = default;

void sglResourceWidget::add_tooltip()
{
    wxWindow * const window = tooltip_window();
    if (!window)
        return;
    utString const name = sglResourceString("vmrgrlib", 1209, m_details.name());
    window->SetToolTip(
        wxtStringConverter::to_wx(utString(wrapped(m_details.long_description())) + "\n" + name));
}

void sglResourceWidget::add_resource(utString const & value)
{
    m_page->add_resource(m_details.name(), value);
}

utString sglResourceWidget::current_value() const
{
    return m_page->current_value(m_details.name());
}

utString sglResourceWidget::default_value() const
{
    return m_page->default_value(m_details.name());
}

int sglResourceWidget::validate_value(utString const & value) const
{
    return m_page->validate_resource_value(m_details.name(), value);
}
