#pragma once

#include <wx/string.h>

/// The kinds of files that a dialog offers for the log of a translation: logs, and all files.
wxString sgl_log_file_filter();
