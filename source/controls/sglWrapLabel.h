#pragma once

#include <functional>
#include <wx/string.h>

class wxStaticText;

/// The text with line ends where a line would grow beyond `width`, in the measure of `width_of`, which is
/// given single lines. Lines end where the rules of Unicode (UAX #14) allow it: after blanks, between
/// ideographs, not before a closing mark. A piece that has no such place stays whole. Blanks at the end of a
/// line go.
wxString sgl_wrapped(wxString const & text, int width, std::function<int(wxString const &)> const & width_of);

/// Wraps the text of a label to that many pixels. The toolkit's own operation knows no place to break but the
/// blank, of which a Japanese text has none.
void sgl_wrap_label(wxStaticText & label, int width);
