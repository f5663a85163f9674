#pragma once

#include <string_view>

#include <wx/string.h>

#include "ut/utString.h"

/// Moves text between the strings of the system, which are UTF-8, and those of the toolkit. Bytes that are
/// not UTF-8 become the code points U+DC80 to U+DCFF and come back as those bytes, so that every file name
/// survives the way there and back. No operation depends on the locale.
class wxtStringConverter {
public:
    static wxString to_wx(utString const & text); ///< an invalid string gives an empty one
    static wxString to_wx(std::string_view text);
    static utString to_ut(wxString const & text);

    /// A path as the toolkit writes paths: its file dialogs, its drops and its file functions have a form of
    /// their own for bytes that are not UTF-8, which is also one that its controls can show. The two come
    /// back as the same bytes; on paths that are UTF-8 they do what the other operations do.
    static wxString path_to_wx(utString const & path);
    static utString path_to_ut(wxString const & path);
};
