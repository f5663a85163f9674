#pragma once

#include <wx/generic/stattextg.h>

/// A label in a dialog that looks and behaves like the title of a menu: it underlines its mnemonic, rises
/// under the mouse, sinks while its menu is open, and reports a press to its parent as a button event with
/// its identifier. The keyboard reaches it too: Enter, Space and the arrow down press it. Graphical thread.
///
/// The toolkit's own label paints itself and does not notice the mouse on every platform, so this is built
/// on its generic one.
class sglDialogMenu : public wxGenericStaticText {
public:
    sglDialogMenu() = default;
    sglDialogMenu(wxWindow * parent, wxWindowID id, wxString const & label,
                  wxPoint const & position = wxDefaultPosition, wxSize const & size = wxDefaultSize,
                  long style = 0, wxString const & name = wxASCII_STR(wxStaticTextNameStr));
    bool Create(wxWindow * parent, wxWindowID id, wxString const & label,
                wxPoint const & position = wxDefaultPosition, wxSize const & size = wxDefaultSize,
                long style = 0, wxString const & name = wxASCII_STR(wxStaticTextNameStr));

    /// The text has its mnemonic behind "&". Takes the size that the text needs.
    void SetLabel(wxString const & text) override;

    void highlight(int on);
    void menu_dismissed(); ///< for the owner, when the popup menu has closed

    bool AcceptsFocus() const override { return IsShown() && IsEnabled(); }
    bool AcceptsFocusFromKeyboard() const override { return AcceptsFocus(); }

protected:
    void OnLButtonDown(wxMouseEvent & event);
    void OnMouseEnter(wxMouseEvent & event);
    void OnMouseLeave(wxMouseEvent & event);
    void OnGainFocus(wxFocusEvent & event);
    void OnKillFocus(wxFocusEvent & event);
    void OnKeyDown(wxKeyEvent & event);
    void OnPaint(wxPaintEvent & event);

    wxSize DoGetBestClientSize() const override;

private:
    wxSize needed_size() const;
    void press();

    int m_highlight = 0;
    int m_menu_open = 0;
    wxString m_before;
    wxString m_mnemonic;
    wxString m_after;
    wxSize m_size_before;
    wxSize m_size_mnemonic;
    wxSize m_size_after;
    wxSize m_size_whole;
    wxFont m_underlined_font;
    wxFont m_normal_font;
    int m_margin_x = 4;
    int m_margin_y = 2;

    wxDECLARE_DYNAMIC_CLASS(sglDialogMenu);
    wxDECLARE_EVENT_TABLE();
};
