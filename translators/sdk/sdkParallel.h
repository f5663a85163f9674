#pragma once

#include <Message_ProgressRange.hxx>

#include <functional>

// Does work(0), work(1), ... work(count - 1), each once, in so many threads, of which the caller's is one.
// False when the user has cancelled: then some are not done. What a piece of work throws is thrown here,
// after all threads have ended. Progress is told by the caller's thread only.
bool sdk_in_parallel(int count, int threads, std::function<void(int)> const & work,
                     Message_ProgressRange const & range = {});
