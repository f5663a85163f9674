#pragma once

#include <wx/colour.h>
#include <wx/font.h>

class wxDC;
class wxString;

/// How far two colours are apart in brightness, from 1 to 21: the contrast ratio of the Web Content
/// Accessibility Guidelines 2.1.
double sgl_contrast(wxColour const & a, wxColour const & b);

/// The colour for text on `background`: `wanted` where that can be read, and otherwise the system's colour of
/// plain text, or black or white. There are themes whose colours of captions do not go together.
wxColour sgl_readable_colour(wxColour const & background, wxColour const & wanted);

/// `font`, or a smaller size of it in which `text` is no higher than `height` pixels: where the user has made
/// all texts larger, 18 points are more than a bar of 32 pixels has room for.
wxFont sgl_fitting_font(wxDC & dc, wxFont const & font, wxString const & text, int height);
