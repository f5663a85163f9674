#pragma once

#include <wx/combo.h>
#include <wx/listctrl.h>

#include "ut/utString.h"

/// The list that drops down from a `sglComboBox`: one column, in the order of the texts.
class sglListViewComboPopup : public wxListView, public wxComboPopup {
public:
    sglListViewComboPopup() { Init(); }

    void Init() override;
    bool Create(wxWindow * parent) override;
    wxWindow * GetControl() override { return this; }
    /// Chooses the row of that text; without one nothing changes.
    void SetStringValue(wxString const & text) override;
    wxString GetStringValue() const override; ///< empty when no row is chosen
    wxSize GetAdjustedSize(int min_width, int pref_height, int max_height) override;

    int value() const { return m_value; } ///< the row chosen, or -1
    int hover_row() const { return m_hover_row; }
    int find(wxString const & text) const; ///< the row of that text, or -1

    int add_string(utString const & text); ///< at its place in the order; returns the row
    int insert_first(wxString const & text);
    void remove_row(int row); ///< with the row chosen nothing is chosen any more
    void remove_all();
    void show_value(); ///< as the list opens: selects the row chosen, whatever was pointed at before

private:
    void OnMouseMove(wxMouseEvent & event);
    void OnMouseClick(wxMouseEvent & event);
    void OnKeyDown(wxKeyEvent & event);
    int insert(int row, wxString const & text);

    int m_value = -1;
    int m_hover_row = -1;

    wxDECLARE_EVENT_TABLE();
};
