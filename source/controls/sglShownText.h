#pragma once

#include <wx/string.h>

/// The text as the toolkit's controls take it: bytes that are not UTF-8 become lone surrogates on their way
/// to the toolkit, and here replacement characters.
wxString sgl_shown_text(wxString const & text);
