#pragma once

#include <wx/dnd.h>

class sglTranslateDialog;
class wxTextCtrl;

/// Takes files that are dropped onto a page, or the name of one into a text control. The window under the
/// mouse owns it.
class sglDropFiles : public wxFileDropTarget {
public:
    explicit sglDropFiles(wxTextCtrl * text) : m_text(text) {}         ///< not owned
    explicit sglDropFiles(sglTranslateDialog * page) : m_page(page) {} ///< not owned

    bool OnDropFiles(wxCoord x, wxCoord y, wxArrayString const & files) override;

private:
    wxTextCtrl * m_text = nullptr;
    sglTranslateDialog * m_page = nullptr;
};

/// Brings the window in which `window` stands, with all that it belongs to, to the front.
void sgl_raise_top_window(wxWindow * window);
