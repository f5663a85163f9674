// Usage data in the program: where they are kept, the way to them, and when the user is asked.

#include "vmrApp.h"

#include "idleWork.h"
#include "sglResourceString.h"
#include "sglUsageDialogs.h"

#include "wxt/wxtStringConverter.h"

#include <utility>
#include <wx/menu.h>
#include <wx/xrc/xmlres.h>

namespace {

/// The startup field that is "yes" once something was translated in a window: only then does the user know
/// what the question is about.
constexpr char const * ask_field = "ask_about_usage_data";

utString translated(char const * key)
{
    return sglGUIString(key, "vmrgrlib").process();
}

} // namespace

void vmrApp::initialise_usage_data()
{
    apPathName const user = file_locator().user();
    utString const folder = user.empty() ? utString() : utString(user.utf8() + "/usage");
    analytics_reporter()->initialise(application_information(), folder, version() + build_number(),
                                     sgl_usage_data_text());
    if (has_display())
        sgl_present_usage_dialogs(analytics_reporter());
}

void vmrApp::add_usage_menu(wxMenuBar & bar)
{
    wxMenu * help = nullptr;
    bar.FindItem(XRCID("IDM_HELP_ABOUT"), &help);
    // In front of the separator and the about command, which stand at the end.
    auto * const item =
        help->Insert(help->GetMenuItemCount() - 2, wxID_ANY,
                     wxtStringConverter::to_wx(translated("m.main::&Usage Data...")),
                     wxtStringConverter::to_wx(
                         translated("m.main.help::Shows what is recorded about the use of the program")));
    item->Enable(analytics_reporter()->is_initialised());
    m_window->Bind(
        wxEVT_MENU, [this](wxCommandEvent &) { analytics_reporter()->show_menu_dialog(m_window); },
        item->GetId());
}

void vmrApp::ask_about_usage_data_when_idle()
{
    if (startup_info().find_field(ask_field) != "yes")
        return;
    // A question that comes before the desktop has taken its window in would lie behind that.
    m_window->Bind(wxEVT_ACTIVATE, [this, asked = false](wxActivateEvent & event) mutable {
        event.Skip();
        if (event.GetActive() && !std::exchange(asked, true))
            vmr_add_idle_work([this] { analytics_reporter()->show_startup_dialog(m_window); });
    });
}

void vmrApp::remember_to_ask_about_usage_data()
{
    if (num_translations() > 0 && analytics_reporter()->usage_record().choice() == aniUsageUndecided &&
        startup_info().find_field(ask_field) != "yes")
        startup_info().add_field(ask_field, "yes");
}
