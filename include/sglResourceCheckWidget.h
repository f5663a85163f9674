#pragma once

#include "sglResourceWidget.h"

#include <wx/checkbox.h>

/// A check box that tells its widget of each click.
class sglResourceCheckBox : public wxCheckBox {
public:
    explicit sglResourceCheckBox(sglResourceWidget * widget) : m_widget(widget) {}
    void forget_widget() { m_widget = nullptr; }

    wxDECLARE_EVENT_TABLE();

private:
    void OnClicked(wxCommandEvent & event);

    sglResourceWidget * m_widget;
};

/// A row for a boolean resource, which is stored as "True" or "False".
class sglResourceCheckWidget : public sglResourceWidget {
public:
    /// The rectangle is in pixels of the page.
    sglResourceCheckWidget(sglResourceDetails const & details, wxRect & rectangle,
                           sglResourceOptionsPage * page);
    ~sglResourceCheckWidget() override;

    void control_changed() override;
    void resource_changed() override;
    void set_value() override;

protected:
    wxWindow * tooltip_window() override { return m_check_box; }
    int create(wxRect & rectangle);

private:
    sglResourceCheckBox * m_check_box;
};
