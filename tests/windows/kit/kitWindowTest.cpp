#include "windows/kit/kitWindowTest.h"

#include "kit/kitAssertions.h"
#include "windows/kit/kitDisplay.h"

#include <algorithm>
#include <chrono>
#include <glib.h>
#include <string_view>
#include <wx/evtloop.h>
#include <wx/init.h>

namespace {

using Clock = std::chrono::steady_clock;

/// Where the window manager is late, a window is laid out once more at the two pixels that it has before its
/// size is known, with its menu bar by then, and the platform complains of so little room.
bool is_complaint_of_a_window_without_its_size(std::string_view message)
{
    if (message != "gtk_distribute_natural_allocation: assertion 'extra_space >= 0' failed")
        return false;
    return std::any_of(wxTopLevelWindows.begin(), wxTopLevelWindows.end(), [](wxWindow const * window) {
        auto const * const frame = dynamic_cast<wxFrame const *>(window);
        return frame && frame->GetMenuBar() && frame->GetClientSize().x <= 2;
    });
}

void fail_on_critical(char const * domain, GLogLevelFlags level, char const * message, void *)
{
    if (level & (G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_ERROR) &&
        !is_complaint_of_a_window_without_its_size(message))
        ADD_FAILURE() << (domain ? domain : "") << ": " << message;
}

/// The application object of the process, started by the first test.
class Started {
public:
    Started()
    {
        kit_have_display();
        setenv("LC_ALL", "C.UTF-8", 1);
        setenv("XDG_CONFIG_HOME", (m_folder / "config").c_str(), 1);
        m_app = new kitApp(VMR_BUILD_TREE, m_folder / "user");
        m_app->use_display(true);
        m_app->SetExitOnFrameDelete(false);
        wxApp::SetInstance(m_app);
        kit_fail_on_assertions();
        g_log_set_default_handler(fail_on_critical, nullptr);
        if (!wxEntryStart(m_argument_count, m_arguments))
            throw std::runtime_error("the toolkit does not start");
        m_app->pre_splash_screen_init();
        if (!m_app->run_on_init())
            throw std::runtime_error("the application does not start on " VMR_BUILD_TREE);
        m_app->initialise_services();
        m_loop = std::make_unique<wxEventLoop>();
        wxEventLoopBase::SetActive(m_loop.get());
    }
    ~Started()
    {
        wxEventLoopBase::SetActive(nullptr);
        m_loop.reset();
        wxEntryCleanup();
    }

    kitApp & app() { return *m_app; }
    std::string user_folder() const { return m_folder / "user/Tester"; }
    wxEventLoop & loop() { return *m_loop; }

private:
    kitTempFolder m_folder;
    kitApp * m_app = nullptr; // the toolkit deletes it
    std::unique_ptr<wxEventLoop> m_loop;
    char m_name[5] = "test";
    char * m_arguments[2] = {m_name, nullptr};
    int m_argument_count = 1;
};

Started * started = nullptr;

class EndApplication : public testing::Environment {
public:
    void TearDown() override
    {
        delete started;
        started = nullptr;
    }
};
auto * const end_application = testing::AddGlobalTestEnvironment(new EndApplication);

void one_round(wxEventLoopBase & loop)
{
    wxTheApp->ProcessPendingEvents();
    if (loop.Pending())
        loop.Dispatch();
    else if (!loop.ProcessIdle())
        loop.DispatchTimeout(10);
}

} // namespace

void kitWindowTest::SetUp()
{
    if (!started)
        started = new Started;
    m_layout_path = app().application_information()->schema_path("resources");
}

void kitWindowTest::TearDown()
{
    std::vector<wxWindow *> const left(wxTopLevelWindows.begin(), wxTopLevelWindows.end());
    for (wxWindow * const window : left)
        if (!wxPendingDelete.Member(window))
            window->Destroy();
    settle();
    // The next test finds the application as it was.
    const_cast<vmrabsAppInfo *>(app().application_information())->set_schema_path("resources", m_layout_path);
    std::filesystem::remove_all(user_folder() + "/resources");
}

kitApp & kitWindowTest::app()
{
    return started->app();
}

std::string kitWindowTest::user_folder()
{
    return started->user_folder();
}

void kitWindowTest::run_until(std::function<bool()> const & done, int seconds, char const * what)
{
    auto const deadline = Clock::now() + std::chrono::seconds(seconds);
    auto * const loop = wxEventLoopBase::GetActive();
    while (!done()) {
        if (Clock::now() > deadline) {
            ADD_FAILURE() << "waited for " << what << " for " << seconds << " seconds";
            return;
        }
        one_round(*loop);
    }
}

void kitWindowTest::settle()
{
    auto * const loop = wxEventLoopBase::GetActive();
    for (int quiet = 0; quiet < 3;) {
        wxTheApp->ProcessPendingEvents();
        if (loop->Pending()) {
            loop->Dispatch();
            quiet = 0;
        } else if (!loop->ProcessIdle()) {
            loop->DispatchTimeout(5);
            ++quiet;
        }
    }
}

wxFrame * kitWindowTest::show_frame(wxSize const & size)
{
    auto * const frame = new wxFrame(nullptr, wxID_ANY, "test", wxDefaultPosition, size);
    frame->Show();
    run_until([frame] { return frame->IsShownOnScreen() && frame->IsActive(); }, 20, "the frame");
    settle();
    return frame;
}

int kitWindowTest::show_modal(wxDialog & dialog, std::function<void()> const & script, int seconds)
{
    wxTimer limit;
    limit.Bind(wxEVT_TIMER, [&](wxTimerEvent &) {
        ADD_FAILURE() << "the dialog was still open after " << seconds << " seconds";
        dialog.EndModal(wxID_ABORT);
    });
    limit.StartOnce(seconds * 1000);
    dialog.CallAfter([&] {
        run_until([&] { return dialog.IsShownOnScreen() && dialog.IsActive(); }, 20, "the dialog");
        settle();
        script();
    });
    return dialog.ShowModal();
}

void kitWindowTest::expect_dialog(kitModal & boxes, std::function<void(wxDialog &)> const & script)
{
    boxes.expect_own([script](wxDialog * dialog) {
        dialog->CallAfter([dialog, script] {
            run_until([&] { return dialog->IsShownOnScreen() && dialog->IsActive(); }, 20, "the dialog");
            settle();
            script(*dialog);
            if (dialog->IsModal()) {
                ADD_FAILURE() << "the dialog is still open";
                dialog->EndModal(wxID_ABORT);
            }
        });
    });
}

void kitWindowTest::press(wxWindow & parent, char const * id)
{
    auto * const button = find<wxWindow>(parent, id);
    if (!button)
        return;
    EXPECT_TRUE(button->IsEnabled()) << id << " cannot be pressed";
    wxCommandEvent event(wxEVT_BUTTON, button->GetId());
    event.SetEventObject(button);
    button->ProcessWindowEvent(event);
}

void kitWindowTest::focus(wxWindow & window)
{
    auto * const top = dynamic_cast<wxTopLevelWindow *>(wxGetTopLevelParent(&window));
    run_until([top] { return top->IsActive(); }, 20, "the window to be the active one");
    window.SetFocus();
    run_until([&] { return window.HasFocus() || window.IsDescendant(wxWindow::FindFocus()); }, 20,
              "the focus");
    settle();
}

void kitWindowTest::click(wxWindow & window)
{
    wxUIActionSimulator simulator;
    wxSize const size = window.GetSize();
    simulator.MouseMove(window.ClientToScreen(wxPoint(size.x / 2, size.y / 2)));
    settle();
    simulator.MouseClick();
    settle();
}

void kitWindowTest::type(char const * text)
{
    wxUIActionSimulator().Text(text);
    settle();
}

void kitWindowTest::key(int code, int modifiers)
{
    wxUIActionSimulator().Char(code, modifiers);
    settle();
}

void kitWindowTest::choose_menu(wxWindow & window, char const * id)
{
    wxCommandEvent event(wxEVT_MENU, XRCID(id));
    event.SetEventObject(&window);
    window.ProcessWindowEvent(event);
}
