#pragma once

#include <string>
#include <vector>

#include <wx/filedlg.h>

#include "ut/utString.h"

/// A file dialog for saving. A name that is typed without an extension gets the first one of the filter that
/// is chosen, and so does a name with the extension that was offered, once the user has chosen another
/// filter. With wxFD_OVERWRITE_PROMPT it is the file of the finished name that the user is asked about; No
/// leaves the dialog open.
class sglSaveDialog : public wxFileDialog {
public:
    /// The extensions of each filter, without their dots; a filter beyond them has none.
    using Extensions = std::vector<std::vector<std::string>>;

    /// `filter` as the toolkit takes it.
    sglSaveDialog(wxWindow * parent, wxString const & title, wxString const & directory,
                  wxString const & name, wxString const & filter, Extensions extensions, long style);
    /// With an extension of the first filter alone.
    sglSaveDialog(wxWindow * parent, wxString const & title, wxString const & directory,
                  wxString const & name, wxString const & filter, char const * extension, long style);

    int ShowModal() override;
    utString chosen_path() const; ///< with its extension; empty where the toolkit has none to give

private:
    void OnAccept(wxCommandEvent & event);

    std::string extension_for(std::string const & typed) const;

    Extensions m_extensions;
    std::string m_offered; // the extension of the name at first
    int m_first_filter = 0;
};
