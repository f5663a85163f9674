#include "sglCaptionText.h"

#include <algorithm>
#include <cmath>

#include <wx/dc.h>
#include <wx/settings.h>

namespace {

/// What the guidelines ask for large text, and a little more.
constexpr double enough = 4.5;

double linear(unsigned char level)
{
    double const value = level / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(wxColour const & colour)
{
    return 0.2126 * linear(colour.Red()) + 0.7152 * linear(colour.Green()) + 0.0722 * linear(colour.Blue());
}

} // namespace

double sgl_contrast(wxColour const & a, wxColour const & b)
{
    auto const [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

wxColour sgl_readable_colour(wxColour const & background, wxColour const & wanted)
{
    if (sgl_contrast(background, wanted) >= enough)
        return wanted;
    for (auto const index : {wxSYS_COLOUR_INACTIVECAPTIONTEXT, wxSYS_COLOUR_BTNTEXT, wxSYS_COLOUR_WINDOWTEXT,
                             wxSYS_COLOUR_WINDOW}) {
        auto const colour = wxSystemSettings::GetColour(index);
        if (sgl_contrast(background, colour) >= enough)
            return colour;
    }
    return sgl_contrast(background, *wxBLACK) >= sgl_contrast(background, *wxWHITE) ? *wxBLACK : *wxWHITE;
}

wxFont sgl_fitting_font(wxDC & dc, wxFont const & font, wxString const & text, int height)
{
    wxFont fitting = font;
    wxDCFontChanger const changer(dc, fitting);
    while (fitting.GetPointSize() > 1 && dc.GetTextExtent(text).GetHeight() > height) {
        fitting.SetPointSize(fitting.GetPointSize() - 1);
        dc.SetFont(fitting);
    }
    return fitting;
}
