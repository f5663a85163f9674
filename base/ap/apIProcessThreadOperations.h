#pragma once

#include <functional>
#include <thread>

/// Processes and threads of the platform.
class apIProcessThreadOperations {
public:
    virtual ~apIProcessThreadOperations() = default;
    /// Runs the body on a new thread; a thread that is not joinable comes back when the system has none to
    /// give.
    virtual std::thread start_thread(std::function<void()> body) const = 0;
    virtual int process_id() const = 0;
};
