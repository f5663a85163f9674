#include "host/hostLastWords.h"

#include "host/hostEvents.h"

#include <array>
#include <csignal>

namespace {

constexpr int fatal_signals[] = {SIGSEGV, SIGBUS, SIGFPE,  SIGILL,  SIGABRT,
                                 SIGTRAP, SIGSYS, SIGTERM, SIGXCPU};

// All that a handler of signals can get at.
struct LastWords {
    hostEvents * events = nullptr;
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

} // namespace

void host_send_last_words_of(hostEvents & events)
{
    last_words.events = &events;
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
