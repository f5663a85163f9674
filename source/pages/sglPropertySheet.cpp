#include "sglPropertySheet.h"

#include "sglApp.h"
#include "sglMenu.h"
#include "sglStartupItemChecker.h"

#include "sdu/sduStartupKeys.h"

#include <wx/clipbrd.h>
#include <wx/menu.h>
#include <wx/textctrl.h>
#include <wx/utils.h>
#include <wx/xrc/xmlres.h>

namespace {

constexpr char const * support_mailbox = "mailto:support@tarnloft.example";

sglApp & application()
{
    return const_cast<sglApp &>(sglApp::app());
}

/// The toolkit's text controls know no command for this on every platform.
void remove_selection(wxWindow & window)
{
    if (auto * const text = dynamic_cast<wxTextCtrl *>(&window); text && text->IsEditable())
        text->RemoveSelection();
}

} // namespace

wxBEGIN_EVENT_TABLE(sglPropertySheet, wxFrame)
    EVT_CLOSE(sglPropertySheet::OnClose)
    EVT_MENU(XRCID("IDM_HELP_ABOUT"), sglPropertySheet::OnAbout)
    EVT_MENU(XRCID("ID_HELP"), sglPropertySheet::OnHelp)
    EVT_MENU(XRCID("IDM_HELP_HELP"), sglPropertySheet::OnHelp)
    EVT_MENU(XRCID("IDM_HELP_CONTACT"), sglPropertySheet::OnContact)
    EVT_MENU(XRCID("IDM_FILE_EXIT"), sglPropertySheet::OnExit)
    EVT_MENU(XRCID("IDM_VIEW_EXPERT"), sglPropertySheet::OnExpert)
    EVT_MENU(XRCID("IDM_VIEW_GRAPHICS"), sglPropertySheet::OnGraphics)
    EVT_MENU(XRCID("IDM_EDIT_UNDO"), sglPropertySheet::OnUndo)
    EVT_MENU(XRCID("IDM_EDIT_COPY"), sglPropertySheet::OnCopy)
    EVT_MENU(XRCID("IDM_EDIT_PASTE"), sglPropertySheet::OnPaste)
    EVT_MENU(XRCID("IDM_EDIT_CUT"), sglPropertySheet::OnCut)
    EVT_MENU(XRCID("IDM_EDIT_CLEAR"), sglPropertySheet::OnClear)
    EVT_MENU(XRCID("IDM_VIEWER_STARTUP"), sglPropertySheet::OnViewerStartup)
    EVT_MENU(XRCID("IDM_HELP_TARNLOFT_HOMEPAGE"), sglPropertySheet::OnTarnloftHomePage)
    EVT_MENU(XRCID("IDM_WHAT_NEW_IN_CROSSWALK"), sglPropertySheet::OnWhatNewInCrosswalk)
    EVT_MENU(XRCID("IDM_COLOUR_SCHEME"), sglPropertySheet::OnColourScheme)
    EVT_IDLE(sglPropertySheet::OnIdle)
wxEND_EVENT_TABLE()

sglPropertySheet::sglPropertySheet(wxWindow * parent, int has_menu, int expert,
                                   sglIMessageDisplayer const * displayer)
    : m_expert(expert), m_has_menu(has_menu), m_message_handler(&sglApp::app()), m_parent(parent),
      m_displayer(displayer)
{
}

// The platform lays a window out at the size of two pixels before it knows that of the window's frame, and a
// menu bar complains of so little room. It joins in when the window has its size.
bool sglPropertySheet::Show(bool show)
{
    if (show && !m_was_shown) {
        m_was_shown = true;
        if (GetMenuBar()) {
            GetMenuBar()->Hide();
            Bind(wxEVT_SHOW, &sglPropertySheet::OnFirstShow, this);
        }
    }
    return wxFrame::Show(show);
}

void sglPropertySheet::OnFirstShow(wxShowEvent & event)
{
    event.Skip();
    if (!event.IsShown())
        return;
    Unbind(wxEVT_SHOW, &sglPropertySheet::OnFirstShow, this);
    GetMenuBar()->Show();
}

void sglPropertySheet::end_dialog(int code)
{
    Hide();
    application().end_main_window(code);
    Destroy();
}

void sglPropertySheet::create_menu()
{
    if (!m_has_menu)
        return;
    wxMenuBar * const bar = sglMenu("vmrgrlib").create_menu_bar("MB_PROPERTYSHEET_MENU");
    if (!bar) {
        m_has_menu = 0;
        return;
    }
    SetMenuBar(bar);
    utString const viewer = sglApp::app().startup_info().find_field(sduSTARTASVIEWER);
    bar->Check(XRCID("IDM_VIEWER_STARTUP"), viewer.invalid() || viewer.case_compare("yes") != 0);
}

void sglPropertySheet::handle_edit_command(wxCommandEvent & event, int id)
{
    wxWindow * const window = wxWindow::FindFocus();
    if (!window)
        return;
    event.SetId(id);
    // It must not come back up to this window.
    event.StopPropagation();
    if (!window->ProcessWindowEvent(event) && id == wxID_CLEAR)
        remove_selection(*window);
}

void sglPropertySheet::check_startup_menu_item(utString const & item_id, utString const & field,
                                               int checked_is_yes, int checked)
{
    if (wxMenuBar * const bar = GetMenuBar())
        sglStartupItemChecker(bar).check_startup_menu_item(item_id, field, checked_is_yes, checked);
}

void sglPropertySheet::check_menus()
{
    if (!m_has_menu)
        return;
    wxMenuBar & bar = *GetMenuBar();
    // The toolkit asks for plain text as well then.
    bar.Enable(XRCID("IDM_EDIT_PASTE"), wxClipboard::Get()->IsSupported(wxDF_UNICODETEXT));
    bool selection = false;
    wxWindow const * const window = wxWindow::FindFocus();
    if (window && window->IsKindOf(wxCLASSINFO(wxTextCtrl))) {
        auto const & text = *static_cast<wxTextCtrl const *>(window);
        bar.Enable(XRCID("IDM_EDIT_UNDO"), text.CanUndo());
        selection = !text.GetStringSelection().empty();
    }
    for (int const id : {XRCID("IDM_EDIT_COPY"), XRCID("IDM_EDIT_CUT"), XRCID("IDM_EDIT_CLEAR")})
        bar.Enable(id, selection);
}

void sglPropertySheet::leave(int code)
{
    if (may_leave())
        end_dialog(code);
}

void sglPropertySheet::OnClose(wxCloseEvent & event)
{
    if (event.CanVeto() && !may_leave())
        event.Veto();
    else
        end_dialog(wxID_CANCEL);
}

void sglPropertySheet::OnExit(wxCommandEvent &)
{
    leave(wxID_CANCEL);
}

void sglPropertySheet::OnExpert(wxCommandEvent &)
{
    // The code is not the item's own identifier.
    if (!m_expert)
        leave(XRCID("ID_VIEW_EXPERT"));
}

void sglPropertySheet::OnGraphics(wxCommandEvent &)
{
    leave(XRCID("IDM_VIEW_GRAPHICS"));
}

void sglPropertySheet::OnAbout(wxCommandEvent & event)
{
    application().OnAbout(event);
}

void sglPropertySheet::OnHelp(wxCommandEvent & event)
{
    application().OnHelp(event);
}

void sglPropertySheet::OnContact(wxCommandEvent &)
{
    wxLaunchDefaultBrowser(support_mailbox);
}

void sglPropertySheet::OnUndo(wxCommandEvent & event)
{
    handle_edit_command(event, wxID_UNDO);
}

void sglPropertySheet::OnCopy(wxCommandEvent & event)
{
    handle_edit_command(event, wxID_COPY);
}

void sglPropertySheet::OnPaste(wxCommandEvent & event)
{
    handle_edit_command(event, wxID_PASTE);
}

void sglPropertySheet::OnCut(wxCommandEvent & event)
{
    handle_edit_command(event, wxID_CUT);
}

void sglPropertySheet::OnClear(wxCommandEvent & event)
{
    handle_edit_command(event, wxID_CLEAR);
}

void sglPropertySheet::OnViewerStartup(wxCommandEvent & event)
{
    check_startup_menu_item("IDM_VIEWER_STARTUP", sduSTARTASVIEWER, 0, event.GetInt() == 1);
}

void sglPropertySheet::OnTarnloftHomePage(wxCommandEvent &)
{
    m_message_handler.OnTarnloftHomePage();
}

void sglPropertySheet::OnWhatNewInCrosswalk(wxCommandEvent &)
{
    m_message_handler.OnWhatNewInCrosswalk();
}

void sglPropertySheet::OnColourScheme(wxCommandEvent &)
{
    application().OnColourScheme();
}

void sglPropertySheet::OnIdle(wxIdleEvent &)
{
    check_menus();
}
