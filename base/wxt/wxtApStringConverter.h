#pragma once

#include <wx/string.h>

#include "ap/apFileName.h"
#include "ap/apPathName.h"
#include "ap/apString.h"

/// Moves platform strings and paths to the toolkit and back, as wxtStringConverter does with the strings of
/// the system.
class wxtApStringConverter {
public:
    static wxString to_wx(apString const & text);
    static wxString to_wx(apPathName const & path);
    static wxString to_wx(apFileName const & name);
    static apString to_ap(wxString const & text);
    static apPathName to_path(wxString const & path);
    static apFileName to_file_name(wxString const & name);
};
