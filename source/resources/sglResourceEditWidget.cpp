#include "sglResourceEditWidget.h"

#include "sglResourceOptionsPage.h"
#include "sglResourceRow.h"

#include "nls/sglShownMessage.h"
#include "resources/sglIllegalValueText.h"
#include "wxt/wxtStringConverter.h"

#include <algorithm>
#include <wx/stattext.h>
#include <wx/utils.h>

wxBEGIN_EVENT_TABLE(sglResourceEditBox, wxTextCtrl)
    EVT_KILL_FOCUS(sglResourceEditBox::OnKillFocus)
    EVT_CHAR_HOOK(sglResourceEditBox::OnCharHook)
wxEND_EVENT_TABLE()

namespace {

/// Room for a number at the usual size of letters, and with larger letters as much more.
int edit_width(wxWindow const & page)
{
    return std::max(70, page.ConvertDialogToPixels(wxSize(34, 0)).GetWidth());
}

} // namespace

void sglResourceEditBox::OnKillFocus(wxFocusEvent & event)
{
    event.Skip();
    if (m_widget)
        m_widget->control_changed();
}

void sglResourceEditBox::OnCharHook(wxKeyEvent & event)
{
    bool const enter = event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER;
    if (!enter || !m_widget || m_widget->may_be_taken()) {
        event.Skip();
        return;
    }
    m_widget->control_changed();
    SetFocus();
    SelectAll();
}

sglResourceEditWidget::sglResourceEditWidget(sglResourceDetails const & details, wxRect & rectangle,
                                             sglResourceOptionsPage * page)
    : sglResourceWidget(details, page), m_edit_box(new sglResourceEditBox(this))
{
    create(rectangle);
}

sglResourceEditWidget::~sglResourceEditWidget()
{
    // The field outlives its widget for a moment, and loses the focus when it goes.
    m_edit_box->forget_widget();
}

wxWindow * sglResourceEditWidget::tooltip_window()
{
    return m_label;
}

int sglResourceEditWidget::create(wxRect & rectangle)
{
    int const width = edit_width(*page());
    wxPoint const position(rectangle.x + rectangle.width - (width + 1), rectangle.y);
    if (!m_edit_box->Create(page(), wxID_ANY, wxString(), position, wxSize(width, rectangle.height - 1), 0))
        return 0;
    m_edit_box->SetFont(page()->GetFont());
    m_label =
        new wxStaticText(page(), wxID_ANY, wxtStringConverter::to_wx(resource().short_description()),
                         wxPoint(rectangle.x, sgl_row_label_y(rectangle, *m_edit_box)), wxDefaultSize, 0);
    m_label->SetFont(page()->GetFont());
    sgl_fit_row(rectangle, *m_label, *m_edit_box);
    return 1;
}

/// A value may be a path of any bytes.
utString sglResourceEditWidget::text() const
{
    return wxtStringConverter::path_to_ut(m_edit_box->GetValue());
}

void sglResourceEditWidget::show_text(utString const & text)
{
    m_edit_box->SetValue(wxtStringConverter::path_to_wx(text));
}

void sglResourceEditWidget::set_value()
{
    show_text(current_value());
}

bool sglResourceEditWidget::may_be_taken() const
{
    utString const value = text();
    // What is empty to begin with may be emptied again.
    return validate_value(value) || (value.empty() && (current_value().empty() || default_value().empty()));
}

void sglResourceEditWidget::resource_changed()
{
    set_value();
    add_resource(current_value());
}

void sglResourceEditWidget::control_changed()
{
    // The message takes the focus itself, and may first give it back to the field.
    if (m_telling)
        return;
    if (may_be_taken()) {
        add_resource(text());
        return;
    }
    utString const value = default_value();
    m_telling = true;
    sgl_show_message(wxGetActiveWindow(), sgl_illegal_value_text(resource()), wxOK);
    m_telling = false;
    show_text(value);
}
