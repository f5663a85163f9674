#pragma once

#include <wx/string.h>

/// A filter text of this library as the toolkit's file dialogs take it: without bars at its end and without
/// blanks around those between label and pattern. The labels stay as they are. The pattern `*.*` becomes one
/// for all names, with or without a dot, and letters stand for both cases.
wxString sgl_toolkit_filter(wxString const & filter);
