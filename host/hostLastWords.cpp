#include "host/hostLastWords.h"

#include "host/hostEvents.h"

#include "host/hostGuard.h"
#include "process/memoryEnd.h"

#include <Standard_OutOfMemory.hxx>

#include <array>
#include <csignal>
#include <exception>
#include <memory>
#include <system_error>
#include <unistd.h>

namespace {

constexpr int fatal_signals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTRAP, SIGSYS, SIGTERM, SIGXCPU};

constexpr std::size_t reserve_size = 1024 * 1024;

// All that a handler of signals can get at.
struct LastWords {
    hostEvents * events = nullptr;
    std::string first_file;
    // Given back when there is no memory left to say so.
    std::unique_ptr<char[]> reserve;
    struct sigaction before[std::size(fatal_signals)] = {};
    alignas(16) std::array<char, 64 * 1024> stack;
};
LastWords last_words;

extern "C" void host_on_fatal_signal(int number, siginfo_t * information, void *)
{
    last_words.events->send_last_words();
    for (std::size_t i = 0; i < std::size(fatal_signals); ++i) {
        if (fatal_signals[i] == number) {
            ::sigaction(number, &last_words.before[i], nullptr);
        }
    }
    // An instruction that failed fails again; a signal that was sent has to be sent again.
    if (information->si_code <= 0 || number == SIGXCPU) {
        ::raise(number);
    }
}

bool nothing_is_left()
{
    if (memory_has_run_out()) {
        return true;
    }
    try {
        if (auto const failure = std::current_exception()) {
            std::rethrow_exception(failure);
        }
    } catch (Standard_OutOfMemory const &) {
        return true;
    } catch (std::system_error const & failure) {
        // There was no room for the stack of a thread.
        return failure.code() == std::errc::resource_unavailable_try_again;
    } catch (...) {
    }
    return false;
}

// On whatever thread the memory ran out, and where nothing was there to catch it: it is no crash.
[[noreturn]] void on_terminate()
{
    auto & events = *last_words.events;
    if (nothing_is_left() && last_words.reserve) {
        last_words.reserve.reset();
        auto const file = events.current_file();
        events.message(sdkStream::error,
                       host_out_of_memory(file.empty() ? last_words.first_file : file).text());
        events.end(sdkStatus::too_big, 0, 0);
        ::_exit(0);
    }
    std::abort();
}

} // namespace

void host_send_last_words_of(hostEvents & events, std::string const & first_file)
{
    last_words.events = &events;
    last_words.first_file = first_file;
    last_words.reserve = std::make_unique<char[]>(reserve_size);
    std::set_terminate(on_terminate);
    stack_t const stack{last_words.stack.data(), 0, last_words.stack.size()};
    ::sigaltstack(&stack, nullptr);
    for (std::size_t i = 0; i < std::size(fatal_signals); ++i) {
        struct sigaction action {};
        action.sa_sigaction = host_on_fatal_signal;
        action.sa_flags = SA_SIGINFO | SA_ONSTACK;
        ::sigfillset(&action.sa_mask);
        ::sigaction(fatal_signals[i], &action, &last_words.before[i]);
    }
}
