#pragma once

#include <wx/statbmp.h>

#include "ut/utString.h"

/// A bitmap that opens a web address when it is clicked. Graphical thread.
class sglBitmapWithLink : public wxStaticBitmap {
public:
    using wxStaticBitmap::wxStaticBitmap;
    sglBitmapWithLink() = default;

    void set_link(utString const & link); ///< and the hand as cursor
    void set_tooltip(utString const & text);

protected:
    void OnLButtonDown(wxMouseEvent & event);

private:
    utString m_link;

    wxDECLARE_DYNAMIC_CLASS(sglBitmapWithLink);
    wxDECLARE_EVENT_TABLE();
};
