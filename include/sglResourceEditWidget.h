#pragma once

#include "sglResourceWidget.h"

#include <wx/textctrl.h>

class wxStaticText;

class sglResourceEditWidget;

/// A text field that tells its widget when it loses the focus. The Enter key, which presses the default
/// button of the dialog, gets there only with a text that is a legal value.
class sglResourceEditBox : public wxTextCtrl {
public:
    explicit sglResourceEditBox(sglResourceEditWidget * widget) : m_widget(widget) {}
    void forget_widget() { m_widget = nullptr; }

    wxDECLARE_EVENT_TABLE();

private:
    void OnKillFocus(wxFocusEvent & event);
    void OnCharHook(wxKeyEvent & event);

    sglResourceEditWidget * m_widget;
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
    bool may_be_taken() const; ///< whether what stands in the field is a legal value

protected:
    wxWindow * tooltip_window() override;
    int create(wxRect & rectangle);

private:
    utString text() const;
    void show_text(utString const & text);

    sglResourceEditBox * m_edit_box;
    wxStaticText * m_label = nullptr;
    bool m_telling = false; ///< while the message about an illegal text is open
};
