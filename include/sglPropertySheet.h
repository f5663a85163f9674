#pragma once

#include <wx/frame.h>

#include "sglAppMessageHandler.h"
#include "ut/utString.h"

class sglIMessageDisplayer;

/// A main window with a menu bar: hands the edit commands to the control that has the focus and ends itself
/// with a code. A window without a menu ignores all that concerns one. Graphical thread.
class sglPropertySheet : public wxFrame {
public:
    /// Does not make the window itself; that is for the derived class. `displayer` is not taken over.
    sglPropertySheet(wxWindow * parent, int has_menu, int expert, sglIMessageDisplayer const * displayer);

    bool Show(bool show = true) override;

    int is_expert() const { return m_expert; }
    int return_code() const { return m_return_code; }

protected:
    void set_return_code(int code) { m_return_code = code; }
    int has_menu() const { return m_has_menu; }
    wxWindow * parent() const { return m_parent; }
    sglIMessageDisplayer const * message_displayer() const { return m_displayer; }

    /// Hides the window, tells the application the code and destroys the window, once control is back in the
    /// event loop.
    void end_dialog(int code);
    virtual bool may_leave() { return true; } ///< asked before the user's close, exit or change of view
    void create_menu();
    /// Sends the event on to the control with the focus, with the toolkit's identifier of the command.
    void handle_edit_command(wxCommandEvent & event, int id);
    void check_startup_menu_item(utString const & item_id, utString const & field, int checked_is_yes,
                                 int checked);
    virtual void check_menus(); ///< on every idle event

    void OnExit(wxCommandEvent & event);

    wxDECLARE_EVENT_TABLE();

private:
    void leave(int code);
    void OnClose(wxCloseEvent & event);
    void OnAbout(wxCommandEvent & event);
    void OnHelp(wxCommandEvent & event);
    void OnContact(wxCommandEvent & event);
    void OnExpert(wxCommandEvent & event);
    void OnGraphics(wxCommandEvent & event);
    void OnUndo(wxCommandEvent & event);
    void OnCopy(wxCommandEvent & event);
    void OnPaste(wxCommandEvent & event);
    void OnCut(wxCommandEvent & event);
    void OnClear(wxCommandEvent & event);
    void OnViewerStartup(wxCommandEvent & event);
    void OnTarnloftHomePage(wxCommandEvent & event);
    void OnWhatNewInCrosswalk(wxCommandEvent & event);
    void OnColourScheme(wxCommandEvent & event);
    void OnIdle(wxIdleEvent & event);
    void OnFirstShow(wxShowEvent & event);

    int m_expert;
    int m_has_menu;
    sglAppMessageHandler m_message_handler;
    wxWindow * m_parent;
    int m_return_code = wxID_OK;
    sglIMessageDisplayer const * m_displayer;
    bool m_was_shown = false;
};
