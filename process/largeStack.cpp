#include "process/largeStack.h"

#include <cstdint>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <ucontext.h>

namespace {

constexpr std::size_t enough = 8 * 1024 * 1024;
// At its end, so that going beyond is a crash and nothing worse.
constexpr std::size_t guard = 64 * 1024;

bool is_large()
{
    rlimit limit{};
    return getrlimit(RLIMIT_STACK, &limit) != 0 || limit.rlim_cur >= enough;
}

void give_threads_enough()
{
    pthread_attr_t attributes;
    if (pthread_attr_init(&attributes) != 0)
        return;
    pthread_attr_setstacksize(&attributes, enough);
    pthread_setattr_default_np(&attributes);
    pthread_attr_destroy(&attributes);
}

struct Run {
    std::function<int()> const & work;
    int result = 0;
};

// A new stack begins with a function that takes numbers only.
void begin(unsigned high, unsigned low)
{
    auto & run = *reinterpret_cast<Run *>(static_cast<std::uintptr_t>(high) << 32 | low);
    run.result = run.work();
}

} // namespace

int run_on_large_stack(std::function<int()> const & work)
{
    if (is_large())
        return work();
    give_threads_enough();
    // Never given back: what is left of the process is its end.
    void * const place = mmap(nullptr, guard + enough, PROT_READ | PROT_WRITE,
                              MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_STACK, -1, 0);
    ucontext_t before, large;
    if (place == MAP_FAILED || mprotect(place, guard, PROT_NONE) != 0 || getcontext(&large) != 0)
        return work();
    large.uc_stack.ss_sp = place;
    large.uc_stack.ss_size = guard + enough;
    large.uc_link = &before;
    Run run{work};
    auto const address = reinterpret_cast<std::uintptr_t>(&run);
    makecontext(&large, reinterpret_cast<void (*)()>(begin), 2, static_cast<unsigned>(address >> 32),
                static_cast<unsigned>(address));
    return swapcontext(&before, &large) == 0 ? run.result : work();
}
