#include "nls/sglHelpKey.h"

#include "sglApp.h"
#include "sglHelpDisplayer.h"

#include <memory>
#include <utility>
#include <wx/event.h>
#include <wx/window.h>

void sgl_open_with_help_key(wxWindow & window, std::function<void()> open)
{
    window.Bind(wxEVT_CHAR_HOOK, [open = std::move(open)](wxKeyEvent & event) {
        if (event.GetKeyCode() == WXK_F1 && event.GetModifiers() == wxMOD_NONE)
            open();
        else
            event.Skip();
    });
}

void sgl_help_with_help_key(wxWindow & window, utString const & topic, std::function<bool()> may_open)
{
    auto const help = std::make_shared<std::unique_ptr<sglHelpDisplayer>>();
    sgl_open_with_help_key(window, [&window, topic, help, may_open = std::move(may_open)] {
        if (may_open && !may_open())
            return;
        if (!*help)
            *help = std::make_unique<sglHelpDisplayer>(&sglApp::app(), &window);
        (*help)->show_help(topic);
    });
}
