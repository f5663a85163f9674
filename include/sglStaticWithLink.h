#pragma once

#include <wx/richtext/richtextctrl.h>

#include "ut/utString.h"

/// A text in which one part is a web address that opens when it is clicked. Graphical thread.
class sglStaticWithLink : public wxRichTextCtrl {
public:
    using wxRichTextCtrl::wxRichTextCtrl;
    sglStaticWithLink() = default;

    /// Writes `text` with the part of it that reads `link` as an address; without one if `link` is invalid or
    /// no part of the text.
    void set_text(utString const & text, utString const & link);

protected:
    void OnURL(wxTextUrlEvent & event);

private:
    wxDECLARE_DYNAMIC_CLASS(sglStaticWithLink);
    wxDECLARE_EVENT_TABLE();
};
