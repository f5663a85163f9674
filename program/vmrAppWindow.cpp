// The program's main window: how it is opened, what its commands do and what follows when it ends.

#include "vmrApp.h"

#include "sglAboutDlg.h"
#include "sglIdleQueue.h"
#include "sglResourceString.h"

#include "wxt/wxtStringConverter.h"

#include <filesystem>
#include <wx/evtloop.h>
#include <wx/menu.h>
#include <wx/xrc/xmlres.h>

namespace {

wxString translated(char const * key)
{
    return wxtStringConverter::to_wx(sglGUIString(key, "vmrgrlib").process());
}

} // namespace

void vmrApp::open_main_window()
{
    m_window = new sglTabDlg(&m_displayer, nullptr);
    m_window->SetIcons(icons());
    if (auto * const bar = m_window->GetMenuBar())
        complete_menu(*bar);
    SetTopWindow(m_window);
    m_window->Show();
}

void vmrApp::complete_menu(wxMenuBar & bar)
{
    // There is no window of the graphics mode to go to, and so no colours to choose for it.
    bar.Enable(XRCID("IDM_VIEW_GRAPHICS"), false);
    bar.Enable(XRCID("IDM_COLOUR_SCHEME"), false);

    wxMenu * view = nullptr;
    bar.FindItem(XRCID("IDM_VIEW_EXPERT"), &view);
    view->AppendSeparator();
    auto const * const details =
        view->Append(wxID_ANY, translated("m.main::&Translation Details...") + "\tCtrl+D",
                     translated("m.main.help::Shows what was translated since the start of the program"));
    m_window->Bind(
        wxEVT_MENU, [this](wxCommandEvent &) { message_handler().OnViewTranslationDetails(); },
        details->GetId());
    add_usage_menu(bar);
}

void vmrApp::end_main_window(int code)
{
    m_help.reset();
    remember_to_ask_about_usage_data();
    m_window = nullptr;
    if (code == XRCID("IDM_VIEW_GRAPHICS") || code == XRCID("ID_VIEW_EXPERT"))
        open_main_window();
    else
        ExitMainLoop();
}

void vmrApp::OnHelp(wxCommandEvent & event)
{
    if (!m_help)
        m_help = std::make_unique<sglHelpDisplayer>(this, m_window);
    utString const topic = m_window ? m_window->help_topic(event.GetId()) : utString::make_invalid();
    if (topic.invalid())
        m_help->show_help();
    else
        m_help->show_help(topic);
}

void vmrApp::OnAbout(wxCommandEvent &)
{
    sglAboutDlg(m_window).ShowModal();
}

void vmrApp::do_idle_work(wxIdleEvent & event)
{
    event.Skip();
    // Behind a dialog the user is at work with it.
    if (!m_window || !m_window->IsShownOnScreen() || wxEventLoopBase::GetActive() != GetMainLoop())
        return;
    auto & queue = sglIdleQueue::instance();
    if (queue.process_pending_item() && !queue.empty())
        event.RequestMore();
}

wxIconBundle const & vmrApp::icons()
{
    wxIconBundle & bundle = m_icons;
    // Unpacking them takes a good part of the start.
    if (bundle.GetIconCount() > 0)
        return bundle;
    for (auto const & directory : get_installation_dir(sdbHRKDirectory::product).directories()) {
        for (auto const * const size : {"16", "24", "32", "48", "64", "128", "256"}) {
            auto const file = directory.utf8() + "/icons/vmr-" + size + ".png";
            wxIcon icon;
            if (std::filesystem::exists(file) &&
                icon.LoadFile(wxtStringConverter::to_wx(std::string_view(file)), wxBITMAP_TYPE_PNG))
                bundle.AddIcon(icon);
        }
    }
    return bundle;
}

wxIcon vmrApp::main_icon()
{
    return icons().GetIcon(wxSize(64, 64));
}
