#include "process/memoryEnd.h"

#include <csignal>
#include <new>
#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>

namespace {

constexpr char const * text = "there is no memory\n";

void throw_no_memory()
{
    throw std::bad_alloc();
}

void throw_where_nothing_may_be_thrown() noexcept
{
    throw_no_memory();
}

} // namespace

TEST(MemoryEnd, IsToldWhereNothingCatches)
{
    end_when_memory_runs_out(text, 7);
    EXPECT_EXIT(throw_where_nothing_may_be_thrown(), testing::ExitedWithCode(7), "^there is no memory\n$");
}

TEST(MemoryEnd, IsToldOnAnotherThread)
{
    end_when_memory_runs_out(text, 7);
    EXPECT_EXIT(std::thread([] { throw std::bad_alloc(); }).join(), testing::ExitedWithCode(7),
                "^there is no memory\n$");
}

TEST(MemoryEnd, IsToldOfAnExceptionThatWasCaught)
{
    end_when_memory_runs_out(text, 7);
    auto const ends = [] {
        try {
            throw std::bad_alloc();
        } catch (...) {
            end_if_memory_has_run_out();
        }
    };
    EXPECT_EXIT(ends(), testing::ExitedWithCode(7), "^there is no memory\n$");
}

TEST(MemoryEnd, IsToldWhereNoExceptionIsLeftThatSaysSo)
{
    end_when_memory_runs_out(text, 7);
    auto const ends = [] {
        try {
            std::get_new_handler()();
        } catch (std::bad_alloc const &) {
        }
        std::terminate();
    };
    EXPECT_EXIT(ends(), testing::ExitedWithCode(7), "^there is no memory\n$");
}

TEST(MemoryEnd, LeavesOtherExceptionsAlone)
{
    end_when_memory_runs_out(text, 7);
    try {
        throw std::runtime_error("other");
    } catch (...) {
        end_if_memory_has_run_out();
    }
    EXPECT_EXIT(std::thread([] { throw std::runtime_error("other"); }).join(),
                testing::KilledBySignal(SIGABRT), "");
}
