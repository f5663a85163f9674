#include "sglFileFilter.h"

#include <wx/arrstr.h>

wxString sgl_toolkit_filter(wxString const & filter)
{
    wxArrayString parts;
    for (wxString const & part : wxSplit(filter, '|', '\0')) {
        wxString trimmed = part;
        trimmed.Trim(true).Trim(false);
        parts.Add(trimmed);
    }
    while (!parts.empty() && parts.Last().empty())
        parts.RemoveAt(parts.size() - 1);
    return wxJoin(parts, '|', '\0');
}
