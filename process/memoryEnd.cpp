#include "process/memoryEnd.h"

#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>
#include <unistd.h>

namespace {

// For the function that the language calls in the end, which takes no arguments. Set before there are
// threads.
struct {
    char const * text = "";
    int status = EXIT_FAILURE;
} last_word;

thread_local bool refused = false;

void on_refusal()
{
    refused = true;
    throw std::bad_alloc();
}

[[noreturn]] void on_terminate()
{
    end_if_memory_has_run_out();
    std::abort();
}

} // namespace

void end_when_memory_runs_out(char const * text, int status)
{
    last_word = {text, status};
    std::set_terminate(on_terminate);
    std::set_new_handler(on_refusal);
}

bool memory_has_run_out()
{
    if (!std::current_exception())
        return refused;
    try {
        throw;
    } catch (std::bad_alloc const &) {
        return true;
    } catch (...) {
        return false;
    }
}

void end_if_memory_has_run_out()
{
    if (!memory_has_run_out())
        return;
    [[maybe_unused]] auto const written = ::write(STDERR_FILENO, last_word.text, std::strlen(last_word.text));
    ::_exit(last_word.status);
}
