#pragma once

#include "co/coPageArr.h"
#include "ut/utString.h"

#include <wx/font.h>
#include <wx/panel.h>

class sglOptionsPage;
class wxStaticText;
class wxTreeCtrl;
class wxTreeEvent;

/// The body of the resources dialog: a tree of pages on the left and, beside it, a caption bar above the page
/// that is selected. It hands each button press to every page and then lets the enclosing dialog see it.
/// Graphical thread.
class sglOptionsDialog : public wxPanel {
public:
    /// Loads the panel from the XRC files, with its texts in the user's language.
    explicit sglOptionsDialog(wxWindow * parent);

    /// Takes a page, a child window of this panel, which the toolkit destroys with it. All pages come before
    /// the panel is sent wxEVT_INIT_DIALOG, a parent before its nested pages.
    void add_page(sglOptionsPage * page);

    wxDECLARE_EVENT_TABLE();

protected:
    sglOptionsPage * active_page() const; ///< the page of the item that is selected, or null
    wxRect caption_rectangle();           ///< in pixels of this panel, computed once
    int create_page(sglOptionsPage * page);
    void position_children();
    void select_initial_page(); ///< the first leaf of the tree

private:
    void OnMove(wxMoveEvent & event);
    void OnPaint(wxPaintEvent & event);
    void OnSelchangedTree(wxTreeEvent & event);
    void OnApply(wxCommandEvent & event);
    void OnCancel(wxCommandEvent & event);
    void OnOk(wxCommandEvent & event);
    void OnDefaults(wxCommandEvent & event);
    void OnInitDialog(wxInitDialogEvent & event);

    void take_focus_from_page(int button);
    void draw_caption_bar(wxDC & dc, wxRect const & bar) const;
    void draw_caption_text(wxDC & dc, wxRect const & bar) const;

    wxStaticText * m_coordinates = nullptr; ///< hidden; its rectangle is where the pages stand
    wxTreeCtrl * m_tree = nullptr;
    coPageArr<sglOptionsPage *> m_pages; ///< in the order of add_page, not owned
    wxFont m_caption_font;
    wxRect m_caption_rectangle;
    int m_initialised = 0;
    int m_initial_page_selected = 0;
};
