// How long the batch page takes to queue files that are dropped on its list, how late the user's events come
// meanwhile, and what the queue costs in memory.
//
//   batch_drop [files]
//
// Needs a display.

#include "kit/benchApp.h"
#include "kit/benchTicker.h"
#include "sglBatchFiles.h"

#include <cstdio>
#include <fstream>
#include <wx/dnd.h>
#include <wx/listctrl.h>
#include <wx/notebook.h>
#include <wx/wx.h>
#include <wx/xrc/xmlres.h>

namespace {

/// The memory of this process in MB.
double memory()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:"))
            return std::atof(line.c_str() + 6) / 1024;
    return 0;
}

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
    auto * const list = XRCCTRL(*page, "IDC_BATCH_BATCH_LIST", wxListCtrl);
    auto * const target = dynamic_cast<wxFileDropTarget *>(list->GetDropTarget());

    // The first file brings what is there once and stays.
    wxArrayString first;
    first.Add(folder.write("first.stp", "ISO-10303-21;\nHEADER;\n"));
    target->OnDropFiles(1, 1, first);
    process_events(20);

    double const before = memory();
    benchTicker ticker;
    ticker.begin();
    auto const begin = benchClock::now();
    target->OnDropFiles(1, 1, files);
    auto const queued = benchClock::now();
    process_events(5);
    ticker.Stop();
    if (list->GetItemCount() != count + 1) {
        std::printf("%d of %d files are in the list\n", list->GetItemCount(), count + 1);
        return 1;
    }
    std::printf(
        "%d files dropped on the batch list: in the list after %.0f ms, latest event %.0f ms late, %+.1f MB "
        "of memory\n",
        count, bench_milliseconds(queued - begin), bench_milliseconds(ticker.longest()), memory() - before);
    return 0;
}

} // namespace

int main(int argc, char ** argv)
{
    int const count = argc > 1 ? std::atoi(argv[1]) : 1000;
    benchApp const app(argv);
    return run(count);
}
