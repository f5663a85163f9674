#include "nls/sglHelpColours.h"

namespace {

struct Pair {
    char const * light;
    char const * dark;
};

// Every colour that the pages use.
constexpr Pair colours[] = {
    {"#FFFFFF", "#1E2226"}, // paper
    {"#202428", "#E4E7EA"}, // ink
    {"#1A5FB4", "#7FB2F0"}, // links
    {"#DCE6F2", "#33465C"}, // headings
    {"#F5F7FA", "#272C32"}, // cells of tables
    {"#B9C6D6", "#4C5A69"}, // lines of tables
};

} // namespace

wxString sglHelpColours::Process(wxString const & text) const
{
    wxString result = text;
    if (m_dark)
        for (auto const & [light, dark] : colours)
            result.Replace(light, dark);
    return result;
}
