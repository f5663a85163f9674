// The pixels of every buffer of these tests end where a page begins that nobody may touch, and what lies in
// front of them is looked at when they are freed. The linker puts these two in the place of calloc and free
// (--wrap) in the code under test; the sanitizers have guards of their own.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <mutex>
#include <new>
#include <sys/mman.h>
#include <unistd.h>
#include <unordered_map>

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

struct Block {
    unsigned char * begin;
    std::size_t writable; // bytes up to the page that nobody may touch
};

std::mutex mutex;

std::unordered_map<void *, Block> & blocks()
{
    static auto * const all = new std::unordered_map<void *, Block>; // to the end of the last test
    return *all;
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
    // At least one byte in front.
    std::size_t const writable = (bytes / page() + 1) * page();
    void * const mapped =
        mmap(nullptr, writable + page(), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED)
        return nullptr;
    auto * const begin = static_cast<unsigned char *>(mapped);
    mprotect(begin + writable, page(), PROT_NONE);
    auto * const memory = begin + writable - bytes;
    std::memset(begin, untouched, writable - bytes);
    std::lock_guard const lock(mutex);
    blocks()[memory] = {begin, writable};
    return memory;
}

void __wrap_free(void * memory)
{
    std::unique_lock lock(mutex);
    auto const found = blocks().find(memory);
    if (!memory || found == blocks().end()) {
        lock.unlock();
        __real_free(memory);
        return;
    }
    Block const block = found->second;
    blocks().erase(found);
    lock.unlock();
    for (auto const * byte = block.begin; byte != memory; ++byte)
        if (*byte != untouched) {
            ADD_FAILURE() << "written " << static_cast<unsigned char *>(memory) - byte
                          << " bytes in front of the pixels";
            break;
        }
    munmap(block.begin, block.writable + page());
}
