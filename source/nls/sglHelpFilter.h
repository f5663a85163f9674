#pragma once

#include <wx/html/htmlfilt.h>

/// Reads the pages of help books, which are UTF-8. The toolkit asks the desktop what a file with the ending
/// ".htm" is, and where the desktop does not know it shows the marks of the page instead of what they mean.
/// Graphical thread.
class sglHelpFilter : public wxHtmlFilter {
public:
    bool CanRead(wxFSFile const & file) const override;
    wxString ReadFile(wxFSFile const & file) const override;
};
