#include "sdk/sdkParallel.h"

#include <Message_ProgressScope.hxx>

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

bool sdk_in_parallel(int count, int threads, std::function<void(int)> const & work,
                     Message_ProgressRange const & range)
{
    Message_ProgressScope scope(range, nullptr, std::max(count, 1));
    std::atomic<int> next{0};
    std::atomic<int> done{0};
    std::atomic<bool> stop{false};
    std::exception_ptr failure;
    std::mutex mutex;
    auto const run = [&](bool leader) {
        try {
            for (int at = next++; at < count && !stop; at = next++) {
                work(at);
                ++done;
                if (leader) {
                    scope.Next(done - scope.Value());
                    stop = stop || scope.UserBreak();
                }
            }
        } catch (...) {
            std::lock_guard const lock(mutex);
            failure = std::current_exception();
            stop = true;
        }
    };
    {
        std::vector<std::jthread> helpers;
        for (int at = 1; at < std::min(threads, count); ++at) {
            helpers.emplace_back(run, false);
        }
        run(true);
    }
    if (failure) {
        std::rethrow_exception(failure);
    }
    return !stop;
}
