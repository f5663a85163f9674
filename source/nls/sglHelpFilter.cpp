#include "nls/sglHelpFilter.h"

#include <wx/filesys.h>
#include <wx/sstream.h>

bool sglHelpFilter::CanRead(wxFSFile const & file) const
{
    return file.GetLocation().Lower().EndsWith(".htm");
}

wxString sglHelpFilter::ReadFile(wxFSFile const & file) const
{
    wxString text;
    if (auto * const stream = file.GetStream()) {
        wxStringOutputStream whole(&text, wxConvUTF8);
        stream->Read(whole);
    }
    return text;
}
