#pragma once

#include <string>
#include <vector>

#include <wx/string.h>

/// A filter text of this library as the toolkit's file dialogs take it: without bars at its end and without
/// blanks around those between label and pattern. The labels stay as they are. The pattern `*.*` becomes one
/// for all names, with or without a dot, and letters stand for both cases.
wxString sgl_toolkit_filter(wxString const & filter);

/// The endings that the patterns of each filter stand for, without their dots: "stp" and "step" of
/// "*.stp;*.step". None for patterns of another kind, as that for all files.
std::vector<std::vector<std::string>> sgl_filter_endings(wxString const & filter);
