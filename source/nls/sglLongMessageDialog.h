#pragma once

#include <wx/dialog.h>

class wxTextCtrl;

/// A message box for a text that is longer than the screen is high: the icon and the buttons that the style
/// of a message box asks for, and the text in a pane that scrolls and of which the user may copy. ShowModal
/// gives the identifier of the button; closing it answers No to a question and is OK or Cancel otherwise.
class sglLongMessageDialog : public wxDialog {
public:
    sglLongMessageDialog(wxWindow * parent, wxString const & text, wxString const & title, long style);

    wxString message() const;
    long message_style() const { return m_style; }

private:
    void add_buttons();

    long m_style;
    wxTextCtrl * m_text;
};
