// Calls that make processes, memory and what processes talk by.

#include "faultCall.h"

#include <cerrno>
#include <cstdarg>
#include <sched.h>

// Both have the shape of the real ones; what the pointers lead to is none of this file's business.
struct spawn_actions;
struct spawn_attributes;

// clang-format off
FAULT_CALL(mmap, reinterpret_cast<void *>(-1), void *, mmap, (void * at, size_t size, int protection, int flags, int file, off_t from), (at, size, protection, flags, file, from))
FAULT_CALL(mmap, reinterpret_cast<void *>(-1), void *, mmap64, (void * at, size_t size, int protection, int flags, int file, off_t from), (at, size, protection, flags, file, from))

FAULT_CALL(pipe, -1, int, pipe, (int * ends), (ends))
FAULT_CALL(pipe, -1, int, pipe2, (int * ends, int flags), (ends, flags))
FAULT_CALL(pipe, -1, int, socketpair, (int domain, int type, int protocol, int * ends), (domain, type, protocol, ends))
FAULT_CALL(pipe, -1, int, eventfd, (unsigned start, int flags), (start, flags))

FAULT_CALL(fork, -1, pid_t, fork, (), ())
FAULT_CALL(fork, errno, int, posix_spawn, (pid_t * process, char const * path, spawn_actions const * actions, spawn_attributes const * attributes, char * const * arguments, char * const * environment), (process, path, actions, attributes, arguments, environment))
FAULT_CALL(fork, errno, int, posix_spawnp, (pid_t * process, char const * path, spawn_actions const * actions, spawn_attributes const * attributes, char * const * arguments, char * const * environment), (process, path, actions, attributes, arguments, environment))
// clang-format on

int pthread_create(pthread_t * thread, pthread_attr_t const * attributes, void * (*run)(void *),
                   void * argument) noexcept
{
    static auto const real =
        reinterpret_cast<decltype(&pthread_create)>(::dlsym(RTLD_NEXT, "pthread_create"));
    return fault_strikes(faultFamily::fork) ? errno : real(thread, attributes, run, argument);
}

int clone(int (*run)(void *), void * stack, int flags, void * argument, ...) noexcept
{
    static auto const real = reinterpret_cast<decltype(&clone)>(::dlsym(RTLD_NEXT, "clone"));
    if (fault_strikes(faultFamily::fork))
        return -1;
    va_list more;
    va_start(more, argument);
    void * const parent = va_arg(more, void *);
    void * const storage = va_arg(more, void *);
    void * const child = va_arg(more, void *);
    va_end(more);
    return real(run, stack, flags, argument, parent, storage, child);
}

// Its caller's frame would be gone when the real one returns for the second time; a fork is what it may be,
// too.
extern "C" pid_t fork();
extern "C" pid_t vfork()
{
    return fork();
}
