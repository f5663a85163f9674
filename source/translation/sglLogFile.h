#pragma once

#include <wx/string.h>

/// The kinds of files that a dialog offers for the log of a translation: logs, and all files.
wxString sgl_log_file_filter();

/// What the name of a log ends with, without the dot.
inline constexpr char const * sgl_log_file_extension = "hrklog";
