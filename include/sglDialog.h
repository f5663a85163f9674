#pragma once

#include "ut/utString.h"

#include <wx/dialog.h>

/// A dialog that comes out of the XRC files with the texts of all its controls in the user's language.
/// Without a display nothing is loaded and the object has no window. Graphical thread.
class sglDialog : public wxDialog {
public:
    sglDialog() = default;
    sglDialog(sglDialog const & other);                        ///< a dialog of its own, with no window
    sglDialog & operator=(sglDialog const &) { return *this; } ///< windows are not assigned

    sglDialog(utString const & template_name, wxWindow * parent); ///< loads without translating
    sglDialog(utString const & template_name, char const * domain, wxWindow * parent);

    wxDECLARE_EVENT_TABLE();

private:
    void load(utString const & template_name, wxWindow * parent);
};

/// Translates the title of a top-level window or the label of any other, and with `recursive` those of all
/// its children. Returns 0 for a null window or when a text cannot be had; the windows done so far stay
/// translated.
int sglTranslateWndText(char const * domain, wxWindow * window, int recursive);

/// A scope in which this thread may take the keyboard focus from another program's window. This platform
/// needs no permission for that, so the scope changes nothing here.
class sglThreadFocus {
public:
    sglThreadFocus() {} // not defaulted: a scope that nothing else uses is no mistake
    ~sglThreadFocus() {}
    sglThreadFocus(sglThreadFocus const &) = delete;
    sglThreadFocus & operator=(sglThreadFocus const &) = delete;
};
