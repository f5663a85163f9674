#pragma once

#include "sdb/sdbOrderedStringPairs.h"
#include "sglResourceWidget.h"

#include <wx/combobox.h>

class wxStaticText;

/// A drop-down list that tells its widget of each change of its text.
class sglResourceComboBox : public wxComboBox {
public:
    explicit sglResourceComboBox(sglResourceWidget * widget) : m_widget(widget) {}
    void forget_widget() { m_widget = nullptr; }

    wxDECLARE_EVENT_TABLE();

private:
    void OnSelChange(wxCommandEvent & event);

    sglResourceWidget * m_widget;
};

/// A row for a resource with a fixed set of values. The table holds the first text of a pair, and the control
/// shows the second.
class sglResourceComboWidget : public sglResourceWidget {
public:
    /// The rectangle is in pixels of the page; it is made twice as high when the label needs two lines.
    sglResourceComboWidget(sdbOrderedStringPairs const & pairs, sglResourceDetails const & details,
                           wxRect & rectangle, sglResourceOptionsPage * page);
    ~sglResourceComboWidget() override;

    void control_changed() override;
    void resource_changed() override;
    void set_value() override;

protected:
    wxWindow * tooltip_window() override;
    int create(wxRect & rectangle);

    utString english_to_foreign(utString const & stored) const { return m_pairs.string2(stored); }
    utString foreign_to_english(utString const & shown) const { return m_pairs.string1(shown); }

private:
    sglResourceComboBox * m_combo_box;
    wxStaticText * m_label = nullptr;
    sdbOrderedStringPairs m_pairs;
};
