#include "host/hostArguments.h"
#include "host/hostCallFilter.h"
#include "host/hostChannel.h"
#include "host/hostComparison.h"
#include "host/hostFileSize.h"
#include "host/hostFolders.h"
#include "host/hostKeeper.h"
#include "host/hostLastWords.h"
#include "host/hostMemory.h"
#include "host/hostProcessThread.h"
#include "host/hostSandbox.h"
#include "host/hostTranslation.h"
#include "process/largeStack.h"
#include "process/memoryEnd.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>

#include <csignal>
#include <cstdio>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

constexpr int exit_misused = 2;
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

[[noreturn]] void show(hostArguments const & arguments)
{
    if (arguments.wish == hostArguments::Wish::help) {
        std::printf("%s%s", host_usage, host_help);
    } else {
        auto const protections = host_describe(host_enter_sandbox(host_places_of_system()));
        std::printf("vmr-host %s\n%s", HOST_VERSION, protections.c_str());
    }
    std::fflush(stdout);
    // What runs at the end of a program does not know of the sandbox.
    ::_exit(0);
}

// The folders are removed when the engine goes away, also before it has sent a job.
int run(std::vector<std::string> const & paths)
{
    hostFolders folders;
    for (auto const & path : paths) {
        folders.add(path);
    }
    ignore_signals();
    hostEvents events(take_standard_output());
    hostChannel channel(events);
    hostJob job;
    std::string problem;
    if (!channel.read_job(job, problem)) {
        std::fprintf(stderr, "vmr-host: no job: %s\n", problem.c_str());
        if (host_engine_is_gone()) {
            folders.remove();
        }
        return exit_without_job;
    }
    folders.add(job.staging);
    hostKeeper keeper(std::move(folders));
    if (auto const entered = host_enter_staging(job); !entered) {
        events.message(sdkStream::error, entered.text());
        events.end(entered.status(), 0, 0);
        keeper.finish();
        return 0;
    }
    host_send_last_words_of(events, job.comparison ? job.comparison->a.file : job.inputs.front().file);
    // Before there are commands, which may allow more.
    host_limit_memory(job.memory_limit);
    host_limit_file_size(job.file_size_limit);
    host_enter_sandbox(host_places_of(job));
    hostProcessThread thread;
    host_refuse_processes();
    channel.watch(keeper);
    quieten_toolkit();

    auto const end = [&](auto && work) {
        auto const result = work.run();
        channel.finish(result.status(), work.reporter().processed(), work.reporter().failed());
    };
    if (job.comparison) {
        end(hostComparison(job, events, channel.cancelled()));
    } else {
        end(hostTranslation(job, events, channel.cancelled(), thread));
    }
    return 0;
}

} // namespace

int main(int argc, char ** argv)
{
    end_when_memory_runs_out("vmr-host: no job: there is no memory\n", exit_without_job);
    auto const arguments = host_read_arguments(argc, argv);
    if (arguments.wish == hostArguments::Wish::nothing) {
        std::fprintf(stderr, "vmr-host: %s is not understood\n%s", arguments.unknown.c_str(), host_usage);
        return exit_misused;
    }
    if (arguments.wish != hostArguments::Wish::job) {
        show(arguments);
    }
    return run_on_large_stack([&] { return run(arguments.folders); });
}
