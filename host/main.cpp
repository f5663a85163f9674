#include "host/hostChannel.h"
#include "host/hostComparison.h"
#include "host/hostFolders.h"
#include "host/hostMemory.h"
#include "host/hostTranslation.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>

#include <csignal>
#include <cstdio>
#include <string>
#include <unistd.h>
#include <utility>

namespace {

constexpr int exit_without_job = 3;

// The engine and the end of the connection decide when this process stops, not the terminal it was started
// from.
void ignore_signals()
{
    for (int const signal : {SIGINT, SIGHUP, SIGPIPE}) {
        std::signal(signal, SIG_IGN);
    }
}

// Libraries print to standard output; the engine's lines go through a descriptor that they do not know.
int take_standard_output()
{
    int const descriptor = ::dup(STDOUT_FILENO);
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    return descriptor;
}

// What goes on in detail interests nobody; each printed line costs time.
void quieten_toolkit()
{
    for (auto const & printer : Message::DefaultMessenger()->ChangePrinters()) {
        printer->SetTraceLevel(Message_Alarm);
    }
}

} // namespace

// The folders that the arguments name are removed when the engine goes away, also before it has sent a job.
int main(int argc, char ** argv)
{
    hostFolders folders;
    for (int i = 1; i < argc; ++i) {
        folders.add(argv[i]);
    }
    ignore_signals();
    hostEvents events(take_standard_output());
    hostChannel channel(events);
    hostJob job;
    std::string problem;
    if (!channel.read_job(job, problem)) {
        std::fprintf(stderr, "vmr-host: no job: %s\n", problem.c_str());
        folders.remove();
        return exit_without_job;
    }
    folders.add(job.staging);
    channel.watch(std::move(folders));
    if (auto const entered = host_enter_staging(job); !entered) {
        events.message(sdkStream::error, entered.text());
        channel.finish(entered.status(), 0, 0);
    }
    host_limit_memory(job.memory_limit);
    quieten_toolkit();

    auto const end = [&](auto && work) {
        auto const result = work.run();
        channel.finish(result.status(), work.reporter().processed(), work.reporter().failed());
    };
    if (job.comparison) {
        end(hostComparison(job, events, channel.cancelled()));
    } else {
        end(hostTranslation(job, events, channel.cancelled()));
    }
}
