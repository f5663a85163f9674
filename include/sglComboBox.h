#pragma once

#include <wx/combo.h>

#include "co/coStrings.h"
#include "sdb/sdbTranslatorInfo.h"
#include "sglFormatList.h"

class sglListViewComboPopup;

/// What a format box shows while the format of a file is not known. One text for the whole program.
utString unknown_format();

/// The box in which a format is chosen. While no format is known it shows the unknown format, which is an
/// entry of its list only then and goes when the user opens the list.
///
/// Each time the list closes, whether or not something was chosen, the box sends wxEVT_COMBOBOX once, and
/// wxEVT_COMBOBOX_CLOSEUP once as the toolkit's own boxes do; a page listens to one of the two. Nothing else
/// sends them. Graphical thread.
class sglComboBox : public wxComboCtrl, public sglFormatList {
public:
    sglComboBox() = default;

    /// Makes the window. Returns 0 when the toolkit cannot.
    int create(wxWindow * parent, int id, wxString const & value, wxPoint const & position,
               wxSize const & size, long style, wxValidator const & validator, wxString const & name);

    static void set_unknown_format(utString const & text);

    int Append(wxString const & text);           ///< returns the row
    int FindString(wxString const & text) const; ///< the row of the whole text, or -1
    int GetCurrentSelection() const;             ///< the row chosen, or -1
    wxString GetStringSelection() const override;
    void SetStringSelection(wxString const & text);
    void Clear() override; ///< empties the list; nothing is chosen any more
    void fill(utStringcoPageArr const & names);

    void check_and_select_unknown(); ///< shows the unknown format if nothing is chosen
    void add_and_select_unknown();
    void delete_unknown();

    /// Shows the format of `info` after loading its translator, during which events are handled. Returns 0,
    /// with the unknown format shown, when it cannot be loaded; the user has been told. A null pointer shows
    /// the unknown format and counts as success.
    int select_and_load(sdbTranslatorInfo const * info);
    /// The same for the format that is chosen, as a format of the input side whichever side the box serves.
    /// Returns 0 when there is no such format.
    int load_selected();

    utString selected_item() const override;
    utString all_files_filter() const override;
    void resize(wxWindow *) {}

    void ShowPopup() override;
    void HidePopup(bool generate_event = false) override;

    sglListViewComboPopup const * popup() const { return m_popup; } ///< null before create

private:
    void OnCloseUp(wxCommandEvent & event);

    sglListViewComboPopup * m_popup = nullptr;
    int m_hiding = 0;
    bool m_window_hiding = false;

    wxDECLARE_NO_COPY_CLASS(sglComboBox);
    wxDECLARE_DYNAMIC_CLASS(sglComboBox);
    wxDECLARE_EVENT_TABLE();
};
