#include "compare/cmpRun.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstring>
#include <optional>
#include <string>
#include <sys/signalfd.h>
#include <unistd.h>

#include "compare/cmpHostTalk.h"
#include "compare/cmpInstallation.h"
#include "compare/cmpJob.h"
#include "compare/cmpPatience.h"
#include "compare/cmpTexts.h"
#include "s2s/s2sHostLink.h"
#include "s2s/s2sHostProcess.h"

namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

constexpr milliseconds time_to_stop(300);
constexpr milliseconds time_to_leave(1000);
// The system does not count longer times.
constexpr milliseconds longest_wait(std::chrono::hours(24));

/// Signals to end the program, as a descriptor. They stay blocked to the end.
class EndSignals {
public:
    EndSignals()
    {
        sigset_t set;
        sigemptyset(&set);
        for (int const signal : {SIGINT, SIGTERM, SIGHUP})
            sigaddset(&set, signal);
        pthread_sigmask(SIG_BLOCK, &set, nullptr);
        m_descriptor = signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
    }
    ~EndSignals()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    EndSignals(EndSignals const &) = delete;
    EndSignals & operator=(EndSignals const &) = delete;

    int descriptor() const { return m_descriptor; }
    bool came() const
    {
        signalfd_siginfo info{};
        return m_descriptor >= 0 && read(m_descriptor, &info, sizeof info) == sizeof info;
    }

private:
    int m_descriptor = -1;
};

/// What brought a comparison to its end.
enum class Ending { host, user, time };

void stop(s2sHostProcess & process, s2sHostLink & link)
{
    s2sHostLink * const links[] = {&link};
    link.send(R"({"command":"cancel"})");
    s2s_wait_for(links, -1, time_to_stop);
    process.kill();
}

Ending listen(EndSignals const & signals, Clock::time_point deadline, s2sHostLink & link, cmpHostTalk & talk)
{
    s2sHostLink * const links[] = {&link};
    while (!talk.end() && (!link.closed() || link.has_line())) {
        auto const left = deadline - Clock::now();
        if (left <= Clock::duration::zero())
            return Ending::time;
        if (!link.has_line())
            s2s_wait_for(links, signals.descriptor(),
                         std::min(std::chrono::ceil<milliseconds>(left), longest_wait));
        if (signals.came())
            return Ending::user;
        if (auto const line = link.next_line())
            talk.take(*line);
    }
    return Ending::host;
}

void judge(cmpReport & report, cmpHostTalk const & talk, s2sHostExit const & exit, cmpTexts const & texts)
{
    if (!talk.end())
        report.problem = texts(s2sMessages::host_died(exit.text(), false, talk.file()));
    else if (talk.end()->status != s2sThreadCompleted || !report.compared())
        report.problem = talk.error();
    if (!talk.end() || talk.end()->status != s2sThreadCompleted)
        report.verdict = sdbVerdictNone;
}

std::string took_too_long(milliseconds patience, cmpHostTalk const & talk, cmpTexts const & texts)
{
    double const seconds = std::chrono::duration<double>(patience).count();
    return talk.both_read()
               ? texts("compare::It took longer than %g seconds and was ended while the files were compared; "
                       "--timeout allows more",
                       seconds)
               : texts(
                     "compare::It took longer than %g seconds and was ended at the file %s; --timeout allows "
                     "more",
                     seconds, talk.file());
}

} // namespace

cmpReport cmp_compare(cmpOptions const & options, cmpInstallation const & installation,
                      cmpTexts const & texts)
{
    cmpReport report;
    report.counts_only = options.counts_only;
    auto const job = cmp_make_job(options, installation, texts, report);
    if (!job)
        return report;
    auto const patience = cmp_patience(options);
    auto const deadline = patience ? Clock::now() + *patience : Clock::time_point::max();
    EndSignals const signals;
    s2sHostProcess process;
    if (int const error = process.start(installation.host_program())) {
        report.problem =
            texts(s2sMessages::host_not_started(installation.host_program(), std::strerror(error)));
        return report;
    }
    s2sHostLink link(process.descriptor());
    link.send(*job);
    cmpHostTalk talk(report, texts);
    if (auto const ending = listen(signals, deadline, link, talk); ending != Ending::host) {
        stop(process, link);
        report.verdict = sdbVerdictNone;
        report.problem = ending == Ending::user ? texts("compare::The comparison was ended")
                                                : took_too_long(*patience, talk, texts);
        return report;
    }
    judge(report, talk, process.wait(time_to_leave), texts);
    return report;
}
