#pragma once

#include <wx/string.h>

/// A filter text of this library as the toolkit's file dialogs take it: without bars at its end and without
/// blanks around those between label and pattern.
wxString sgl_toolkit_filter(wxString const & filter);
