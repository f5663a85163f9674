#include "kit/kitScarceMemory.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t any_size = std::numeric_limits<std::size_t>::max();
std::atomic<std::size_t> most_bytes = any_size;

} // namespace

kitScarceMemory::kitScarceMemory(std::size_t most)
{
    most_bytes = most;
}

kitScarceMemory::~kitScarceMemory()
{
    most_bytes = any_size;
}

// In the place of the library's own, for all of the program.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete" // they are a pair

void * operator new(std::size_t size)
{
    void * const memory = size > most_bytes ? nullptr : std::malloc(size > 0 ? size : 1);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void * memory) noexcept
{
    std::free(memory);
}

void operator delete(void * memory, std::size_t) noexcept
{
    std::free(memory);
}
