// How long the batch page takes to queue files that are dropped on its list, how late the user's events come
// meanwhile, and what the queue costs in memory.
//
//   batch_drop [files]
//
// Needs a display. A timer of one millisecond stands for the user's events.

#include "kit/kitApp.h"
#include "sglBatchFiles.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <wx/dnd.h>
#include <wx/evtloop.h>
#include <wx/init.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/wx.h>
#include <wx/xrc/xmlres.h>

namespace {

using Clock = std::chrono::steady_clock;

double milliseconds(Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

/// The memory of this process in MB.
double memory()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:"))
            return std::atof(line.c_str() + 6) / 1024;
    return 0;
}

class Ticker : public wxTimer {
public:
    void begin()
    {
        m_last = Clock::now();
        m_longest = {};
        Start(1);
    }
    /// Between two ticks, since begin().
    Clock::duration longest() const { return m_longest; }

private:
    void Notify() override
    {
        auto const now = Clock::now();
        m_longest = std::max(m_longest, now - m_last);
        m_last = now;
    }
    Clock::time_point m_last;
    Clock::duration m_longest{};
};

void process_events(int rounds)
{
    auto * const loop = wxEventLoopBase::GetActive();
    for (int round = 0; round < rounds; ++round) {
        while (loop->Pending())
            loop->Dispatch();
        if (!loop->ProcessIdle())
            loop->DispatchTimeout(5);
    }
}

int run(int count)
{
    kitTempFolder const folder;
    wxArrayString files;
    for (int i = 0; i < count; ++i)
        files.Add(folder.write("part" + std::to_string(i) + ".stp", "ISO-10303-21;\nHEADER;\n"));

    auto * const frame = new wxFrame(nullptr, wxID_ANY, "bench", wxDefaultPosition, wxSize(900, 800));
    auto * const notebook = new wxNotebook(frame, wxID_ANY);
    auto * const page = new sglBatchFiles(notebook);
    page->create();
    notebook->AddPage(page, "Batch");
    frame->Show();
    process_events(50);
    auto * const list = XRCCTRL(*page, "IDC_BATCH_BATCH_LIST", wxListBox);
    auto * const target = dynamic_cast<wxFileDropTarget *>(list->GetDropTarget());

    // The first file brings what is there once and stays.
    wxArrayString first;
    first.Add(folder.write("first.stp", "ISO-10303-21;\nHEADER;\n"));
    target->OnDropFiles(1, 1, first);
    process_events(20);

    double const before = memory();
    Ticker ticker;
    ticker.begin();
    auto const begin = Clock::now();
    target->OnDropFiles(1, 1, files);
    auto const queued = Clock::now();
    process_events(5);
    ticker.Stop();
    if (static_cast<int>(list->GetCount()) != count + 1) {
        std::printf("%u of %d files are in the list\n", list->GetCount(), count + 1);
        return 1;
    }
    std::printf(
        "%d files dropped on the batch list: in the list after %.0f ms, latest event %.0f ms late, %+.1f MB "
        "of memory\n",
        count, milliseconds(queued - begin), milliseconds(ticker.longest()), memory() - before);
    return 0;
}

} // namespace

int main(int argc, char ** argv)
{
    int const count = argc > 1 ? std::atoi(argv[1]) : 1000;
    kitTempFolder const folder;
    auto * const app = new kitApp(VMR_BUILD_TREE, folder / "user");
    app->use_display(true);
    wxApp::SetInstance(app);
    int no_arguments = 1;
    if (!wxEntryStart(no_arguments, argv))
        return 1;
    app->pre_splash_screen_init();
    if (!app->run_on_init())
        return 1;
    wxEventLoop loop;
    wxEventLoopActivator const active(&loop);
    return run(count);
}
