// The pixels of every buffer of these tests end where a page begins that nobody may touch, and what lies in
// front of them is looked at when they are freed. The linker puts these two in the place of calloc and free
// (--wrap) in the code under test; the sanitizers have guards of their own.

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <mutex>
#include <new>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

extern "C" {
void * __real_calloc(std::size_t count, std::size_t size);
void __real_free(void * memory);
void * __wrap_calloc(std::size_t count, std::size_t size);
void __wrap_free(void * memory);
}

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t largest_guarded = 0;
#else
constexpr std::size_t largest_guarded = std::size_t(64) << 20;
#endif

constexpr unsigned char untouched = 0xA5;

/// Lies at the beginning of its own piece of memory, for it is asked for at every free of the program.
struct Block {
    Block * next;
    unsigned char * memory;
    std::size_t whole; ///< bytes, with the page that nobody may touch

    unsigned char * front() { return reinterpret_cast<unsigned char *>(this + 1); }
};

std::mutex mutex;
Block * blocks = nullptr;

/// Takes the block out of the list; null for memory of another kind.
Block * taken(void const * memory)
{
    std::lock_guard const lock(mutex);
    for (Block ** place = &blocks; *place; place = &(*place)->next)
        if ((*place)->memory == memory)
            return std::exchange(*place, (*place)->next);
    return nullptr;
}

std::size_t page()
{
    return static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

} // namespace

void * __wrap_calloc(std::size_t count, std::size_t size)
{
    if (size > 0 && count > largest_guarded / size)
        return __real_calloc(count, size);
    std::size_t const bytes = count * size;
    // With one byte in front at least.
    std::size_t const writable = ((sizeof(Block) + bytes) / page() + 1) * page();
    std::size_t const whole = writable + page();
    void * const mapped = mmap(nullptr, whole, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED)
        return nullptr;
    auto * const begin = static_cast<unsigned char *>(mapped);
    mprotect(begin + writable, page(), PROT_NONE);
    auto * const block = new (mapped) Block{nullptr, begin + writable - bytes, whole};
    std::fill(block->front(), block->memory, untouched);
    std::lock_guard const lock(mutex);
    block->next = std::exchange(blocks, block);
    return block->memory;
}

void __wrap_free(void * memory)
{
    Block * const block = memory ? taken(memory) : nullptr;
    if (!block) {
        __real_free(memory);
        return;
    }
    auto const * const written =
        std::find_if(block->front(), block->memory, [](unsigned char byte) { return byte != untouched; });
    if (written != block->memory)
        ADD_FAILURE() << "written " << block->memory - written << " bytes in front of the pixels";
    munmap(block, block->whole);
}
