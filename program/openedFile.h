#pragma once

#include <wx/string.h>

#include "ut/utString.h"

/// The file that an argument of the program names, with its whole path: the window outlives the moment in
/// which the folder of the start meant something.
wxString vmr_opened_file(utString const & argument);
