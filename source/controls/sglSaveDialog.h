#pragma once

#include <wx/filedlg.h>

#include "ut/utString.h"

/// A file dialog for saving. A name that is typed without an extension gets the one of the first filter while
/// that is chosen, and with wxFD_OVERWRITE_PROMPT it is the file of the finished name that the user is asked
/// about; No leaves the dialog open.
class sglSaveDialog : public wxFileDialog {
public:
    /// `filter` as the toolkit takes it; `extension` without its dot.
    sglSaveDialog(wxWindow * parent, wxString const & title, wxString const & directory,
                  wxString const & name, wxString const & filter, char const * extension, long style);

    utString chosen_path() const; ///< with its extension; empty where the toolkit has none to give

private:
    void OnAccept(wxCommandEvent & event);

    utString m_extension;
};
