#pragma once

#include <wx/dialog.h>
#include <wx/html/helpctrl.h>
#include <wx/weakref.h>

#include "ap/apPathName.h"
#include "ut/utString.h"

class sglApp;

/// Opens the program's help book, which is an archive of HTML pages in the directory of the help files, at
/// its contents or at a topic. A book in the language of the program, which has the language in its name
/// (vmrdoc_de.htb beside vmrdoc.htb), comes first. Over a modal dialog the help is a dialog too, and showing
/// it ends when the user closes it; otherwise it is a window that lives as long as this, or until the user
/// closes it. Graphical thread.
class sglHelpDisplayer : public wxHtmlHelpController {
public:
    sglHelpDisplayer(sglApp const * app, wxWindow * parent); ///< the parent may be null

    void set_help_file(utString const & name) { m_file = name; }

    /// The user is told when the book is not there, or cannot be read.
    void show_help();
    void show_help(utString const & topic); ///< a page below "substituted/" in the book

    /// Opens a book, once: one that is opened again would stand in the contents twice. The toolkit's own
    /// operation of this name opens nothing.
    bool LoadFile(wxString const & file) override;
    /// Without a book that could be opened there is no window, but the same message as for a missing one.
    bool DisplayContents() override;
    bool DisplaySection(wxString const & section) override;
    using wxHtmlHelpController::DisplaySection;

protected:
    wxHtmlHelpFrame * CreateHelpFrame(wxHtmlHelpData * data) override;
    wxHtmlHelpDialog * CreateHelpDialog(wxHtmlHelpData * data) override;
    int load_file();                   ///< zero, with a message, when there is no book
    virtual utString language() const; ///< as in de or pt_BR; empty for that of the book without one

private:
    apPathName find_book() const;
    wxString title_format() const;
    bool have_book();
    void choose_window();
    void remove_closed_dialog();

    utString m_file = "vmrdoc.htb";
    wxString m_loaded;
    wxWeakRef<wxDialog> m_dialog;
    sglApp const * m_app;
};
