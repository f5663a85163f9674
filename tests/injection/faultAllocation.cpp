// In the place of the library's own, for all code of the process; only allocations by our own code can fail.

#include "faultState.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

#pragma GCC diagnostic ignored "-Wmismatched-new-delete" // they are a pair

namespace {

void * allocate(std::size_t size, void const * caller) noexcept
{
    return fault_strikes_allocation(caller, size) ? nullptr : std::malloc(size > 0 ? size : 1);
}

void * allocate_or_throw(std::size_t size, void const * caller)
{
    void * const memory = allocate(size, caller);
    if (!memory) {
        if (auto const handler = std::get_new_handler())
            handler();
        throw std::bad_alloc();
    }
    return memory;
}

void release(void * memory)
{
    fault_gives_back(::malloc_usable_size(memory));
    std::free(memory);
}

} // namespace

void * operator new(std::size_t size)
{
    return allocate_or_throw(size, __builtin_return_address(0));
}

void * operator new[](std::size_t size)
{
    return allocate_or_throw(size, __builtin_return_address(0));
}

void * operator new(std::size_t size, std::nothrow_t const &) noexcept
{
    return allocate(size, __builtin_return_address(0));
}

void * operator new[](std::size_t size, std::nothrow_t const &) noexcept
{
    return allocate(size, __builtin_return_address(0));
}

void operator delete(void * memory) noexcept
{
    release(memory);
}

void operator delete[](void * memory) noexcept
{
    release(memory);
}

void operator delete(void * memory, std::size_t) noexcept
{
    release(memory);
}

void operator delete[](void * memory, std::size_t) noexcept
{
    release(memory);
}
