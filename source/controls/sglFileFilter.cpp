#include "sglFileFilter.h"

#include <wx/arrstr.h>
#include <wx/wxcrt.h>

namespace {

wxString of_either_case(wxString const & pattern)
{
    if (pattern.find('[') != wxString::npos)
        return pattern;
    wxString result;
    for (wxUniChar const one : pattern) {
        wxUniChar const lower = wxTolower(one), upper = wxToupper(one);
        if (lower != upper)
            result << '[' << lower << upper << ']';
        else
            result << one;
    }
    return result;
}

wxString toolkit_patterns(wxString const & patterns)
{
    wxArrayString result;
    for (wxString const & pattern : wxSplit(patterns, ';', '\0'))
        result.Add(pattern == "*.*" ? wxString("*") : of_either_case(pattern));
    return wxJoin(result, ';', '\0');
}

} // namespace

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
    for (std::size_t at = 1; at < parts.size(); at += 2)
        parts[at] = toolkit_patterns(parts[at]);
    return wxJoin(parts, '|', '\0');
}

std::vector<std::vector<std::string>> sgl_filter_endings(wxString const & filter)
{
    std::vector<std::vector<std::string>> result;
    wxArrayString const parts = wxSplit(filter, '|', '\0');
    for (std::size_t at = 1; at < parts.size() && !parts[at - 1].empty(); at += 2) {
        auto & endings = result.emplace_back();
        for (wxString pattern : wxSplit(parts[at], ';', '\0')) {
            wxString ending;
            if (pattern.Trim(true).Trim(false).StartsWith("*.", &ending) && ending != "*")
                endings.push_back(ending.utf8_string());
        }
    }
    return result;
}
