#pragma once

#include "sglResourceWidget.h"

#include <wx/textctrl.h>

class wxStaticText;

/// A text field that tells its widget when it loses the focus.
class sglResourceEditBox : public wxTextCtrl {
public:
    explicit sglResourceEditBox(sglResourceWidget * widget) : m_widget(widget) {}
    void forget_widget() { m_widget = nullptr; }

    wxDECLARE_EVENT_TABLE();

private:
    void OnKillFocus(wxFocusEvent & event);

    sglResourceWidget * m_widget;
};

/// A row for a resource of which any text or number may be a value. An edit counts when the field loses the
/// focus.
class sglResourceEditWidget : public sglResourceWidget {
public:
    /// The rectangle is in pixels of the page; it is made twice as high when the label needs two lines.
    sglResourceEditWidget(sglResourceDetails const & details, wxRect & rectangle,
                          sglResourceOptionsPage * page);
    ~sglResourceEditWidget() override;

    void control_changed() override; ///< tells the user of an illegal text and shows the default
    void resource_changed() override;
    void set_value() override;

protected:
    wxWindow * tooltip_window() override;
    int create(wxRect & rectangle);

private:
    sglResourceEditBox * m_edit_box;
    wxStaticText * m_label = nullptr;
    bool m_telling = false; ///< while the message about an illegal text is open
};
