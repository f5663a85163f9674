#include "screens/screens.h"
#include "sglHelpDisplayer.h"

#include <wx/html/helpfrm.h>
#include <wx/html/helpwnd.h>
#include <wx/html/htmlwin.h>

namespace {

class Help : public Screens, public testing::WithParamInterface<char const *> {};

} // namespace

TEST_P(Help, ShowsAPage)
{
    {
        sglHelpDisplayer help(&app(), frame());
        std::string const topic = GetParam();
        if (topic.empty())
            help.show_help();
        else
            help.show_help(utString(topic));
        auto * const window = help.GetFrame();
        ASSERT_TRUE(window);
        run_until([&] { return window->IsShownOnScreen() && window->IsActive(); }, 20, "the help");
        settle();
        auto const page = std::filesystem::path(topic).stem().string();
        picture(*window, "help-" + (page.empty() ? "contents" : page));
    }
    settle();
}

INSTANTIATE_TEST_SUITE_P(Pages, Help,
                         testing::Values("", "source/formats/iges.htm", "source/commandline/grammar.htm",
                                         "source/guide/troubleshooting.htm"));
