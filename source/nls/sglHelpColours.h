#pragma once

// Ahead of the other, which does not stand by itself.
#include <wx/object.h>

#include <wx/html/htmlproc.h>

/// Fits the pages of a help book to the desktop: they are written in the colours of a light one, which a dark
/// one replaces. Graphical thread.
class sglHelpColours : public wxHtmlProcessor {
public:
    explicit sglHelpColours(bool dark) : m_dark(dark) {}
    wxString Process(wxString const & text) const override;

private:
    bool m_dark;
};
