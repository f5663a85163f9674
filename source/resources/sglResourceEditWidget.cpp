#include "sglResourceEditWidget.h"

#include "sglMessageBox.h"
#include "sglResourceOptionsPage.h"
#include "sglResourceRow.h"

#include "wxt/wxtStringConverter.h"

#include <algorithm>
#include <wx/stattext.h>

wxBEGIN_EVENT_TABLE(sglResourceEditBox, wxTextCtrl)
    EVT_KILL_FOCUS(sglResourceEditBox::OnKillFocus)
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

void sglResourceEditWidget::set_value()
{
    m_edit_box->SetValue(wxtStringConverter::to_wx(current_value()));
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
    utString const text = wxtStringConverter::to_ut(m_edit_box->GetValue());
    if (validate_value(text)) {
        add_resource(text);
        return;
    }
    // What is empty to begin with may be emptied again.
    if (text.empty() && (current_value().empty() || default_value().empty())) {
        add_resource(text);
        return;
    }
    utString const value = default_value();
    m_telling = true;
    sglMessageBox("vmrgrlib", 1210, wxOK);
    m_telling = false;
    m_edit_box->SetValue(wxtStringConverter::to_wx(value));
}
