#pragma once

#include <wx/dnd.h>

class sglTranslateDialog;
class wxTextCtrl;
class wxWindow;

/// Takes files that are dropped onto a page, or the name of one into a text control. The window under the
/// mouse owns it. A page that is at work, or that stands behind a dialog, is given none.
class sglDropFiles : public wxFileDropTarget {
public:
    explicit sglDropFiles(wxTextCtrl * text) : m_text(text) {} ///< not owned
    explicit sglDropFiles(sglTranslateDialog * page);          ///< not owned

    bool OnDropFiles(wxCoord x, wxCoord y, wxArrayString const & files) override;

private:
    wxTextCtrl * m_text = nullptr;
    sglTranslateDialog * m_page = nullptr;
};

/// Whether a dialog is open that keeps the user from the windows behind it. Files can be dropped on those all
/// the same. Dialogs count from the first call on. Graphical thread.
bool sgl_dialog_is_open();

/// Whether files that are dropped on the page are for it now.
bool sgl_page_takes_files(wxWindow const & page);

/// Brings the window in which `window` stands, with all that it belongs to, to the front.
void sgl_raise_top_window(wxWindow * window);
