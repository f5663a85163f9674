#include "ap/apPosixOperations.h"

#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <mutex>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace {

class RecursiveLock : public apILock {
public:
    void enter() override { m_mutex.lock(); }
    void leave() override { m_mutex.unlock(); }

private:
    std::recursive_mutex m_mutex;
};

apPathName path_or_empty(std::filesystem::path const & path, std::error_code const & error)
{
    return error ? apPathName() : apPathName::from_utf8(path.native());
}

} // namespace

utString apPosixProcessEnvironmentOperations::environment(utString const & name) const
{
    // Nothing in the program changes the environment, so that reading it is safe on every thread.
    return utString(std::getenv(name.c_str())); // NOLINT(concurrency-mt-unsafe)
}

apPathName apPosixProcessEnvironmentOperations::executable_path() const
{
    std::error_code error;
    auto const path = std::filesystem::read_symlink("/proc/self/exe", error);
    return path_or_empty(path, error);
}

apPathName apPosixProcessEnvironmentOperations::current_directory() const
{
    std::error_code error;
    auto const path = std::filesystem::current_path(error);
    return path_or_empty(path, error);
}

std::unique_ptr<apILock> apPosixSynchOperations::make_lock() const
{
    return std::make_unique<RecursiveLock>();
}

std::thread apPosixProcessThreadOperations::start_thread(std::function<void()> body) const
{
    try {
        return std::thread(std::move(body));
    } catch (std::system_error const &) {
        return {};
    }
}

int apPosixProcessThreadOperations::process_id() const
{
    return static_cast<int>(::getpid());
}

void * apPosixLibraryLoaderOperations::load(apPathName const & path, utString & error) const
{
    error.make_empty();
    // An empty name would give the program itself.
    void * const handle = path.empty() ? nullptr : ::dlopen(path.utf8().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        // The C library here keeps this text for each thread.
        char const * const words =
            path.empty() ? "no file name" : ::dlerror(); // NOLINT(concurrency-mt-unsafe)
        error = utString(words ? words : "unknown error");
    }
    return handle;
}

void * apPosixLibraryLoaderOperations::symbol(void * handle, utString const & name) const
{
    return handle ? ::dlsym(handle, name.c_str()) : nullptr;
}

void apPosixLibraryLoaderOperations::unload(void * handle) const
{
    if (handle)
        ::dlclose(handle);
}
