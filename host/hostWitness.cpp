#include "host/hostWitness.h"

#include "host/hostCallFilter.h"
#include "host/hostMemory.h"
#include "host/hostWitnessWork.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

void close_if_open(int & descriptor)
{
    if (descriptor >= 0) {
        ::close(descriptor);
        descriptor = -1;
    }
}

bool write_all(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        auto const written = ::write(descriptor, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        text.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    return true;
}

} // namespace

hostWitness::hostWitness(sdkDocument const & document, hostEvidence const & evidence,
                         std::vector<int> const & own_descriptors, hostProcessThread & thread)
    : m_thread(thread), m_format(evidence.format)
{
    int question[2] = {-1, -1};
    int answer[2] = {-1, -1};
    if (::pipe(question) != 0 || ::pipe(answer) != 0) {
        close_if_open(question[0]);
        close_if_open(question[1]);
        return;
    }
    auto const parent = ::getpid();
    auto const taken = host_memory_taken();
    m_thread.run([&] {
        m_process = ::fork();
        if (m_process != 0) {
            return;
        }
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent) {
            ::_exit(1);
        }
        // A crash here is no crash of the host and is told as what it is.
        ::close(question[1]);
        ::close(answer[0]);
        for (int const descriptor : own_descriptors) {
            ::close(descriptor);
        }
        host_refuse_processes();
        host_limit_memory_of_fork(taken);
        // Not taken apart at the end: the end of the process does that faster.
        hostWitnessWork work(document, evidence, question[0], answer[1]);
        work.run();
        ::_exit(0);
    });
    ::close(question[0]);
    ::close(answer[1]);
    m_question = question[1];
    m_answer = answer[0];
    if (m_process < 0) {
        close_if_open(m_question);
        close_if_open(m_answer);
    }
}

hostWitness::~hostWitness()
{
    end();
}

void hostWitness::end()
{
    close_if_open(m_question);
    close_if_open(m_answer);
    if (m_process > 0) {
        m_thread.run([this] { ::kill(m_process, SIGKILL); });
        while (::waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) {
        }
        m_process = -1;
    }
}

void hostWitness::ask(hostQuestion const & question)
{
    m_asked = m_process > 0 && write_all(m_question, host_write_question(question) + "\n");
    // A witness that was not asked would wait for ever, and this process for its end.
    if (!m_asked) {
        close_if_open(m_question);
    }
}

hostTestimony hostWitness::answer(std::chrono::milliseconds limit, std::atomic<bool> const & cancelled,
                                  std::function<void(int)> const & progress,
                                  std::function<bool()> const & hopeless)
{
    hostTestimony testimony;
    if (m_process < 0) {
        testimony.reason = sdkText("host::There is no process left to read the output back in");
        return testimony;
    }
    auto const begun = Clock::now();
    bool ended = !m_asked;
    std::string text;
    while (!ended && !cancelled) {
        auto const taken = Clock::now() - begun;
        if (taken >= limit || hopeless()) {
            end();
            testimony.reason = sdkText("host::Reading the output back took longer than %d seconds",
                                       std::chrono::duration_cast<std::chrono::seconds>(taken).count());
            return testimony;
        }
        ::pollfd wait{m_answer, POLLIN, 0};
        if (::poll(&wait, 1, 50) <= 0) {
            continue;
        }
        char buffer[64 * 1024];
        auto const count = ::read(m_answer, buffer, sizeof buffer);
        ended = count == 0 || (count < 0 && errno != EINTR);
        text.append(buffer, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        for (auto end_of_line = text.find('\n'); end_of_line != std::string::npos;
             end_of_line = text.find('\n')) {
            auto const line = text.substr(0, end_of_line);
            text.erase(0, end_of_line + 1);
            if (line.starts_with('{')) {
                return testimony_from(line);
            }
            progress(std::atoi(line.c_str()));
        }
    }
    if (!cancelled) {
        testimony.reason = how_it_ended();
    }
    return testimony;
}

// A library that runs wild in the witness may write anywhere.
hostTestimony hostWitness::testimony_from(std::string const & line) const
{
    try {
        return host_read_testimony(line);
    } catch (std::exception const &) {
        hostTestimony testimony;
        testimony.reason = sdkText("host::The reader of %s ended over the output without a result", m_format);
        return testimony;
    }
}

sdkText hostWitness::how_it_ended()
{
    int status = 0;
    while (::waitpid(m_process, &status, 0) < 0 && errno == EINTR) {
    }
    m_process = -1;
    if (WIFSIGNALED(status)) {
        return sdkText("host::The reader of %s crashed over the output: %s", m_format,
                       ::strsignal(WTERMSIG(status)));
    }
    return sdkText("host::The reader of %s ended over the output without a result", m_format);
}
