#pragma once

#include <memory>
#include <thread>

#include "ap/apIProcessThreadOperations.h"
#include "ap/apIThreadTask.h"

/// A thread that runs its task from its construction on and shares the task's ownership until the task has
/// ended.
class apThread {
public:
    /// The operations are used here only; null stands for those of the platform.
    apThread(std::shared_ptr<apIThreadTask> task, apIProcessThreadOperations const * operations);
    ~apThread(); ///< waits for the end of the task
    apThread(apThread const &) = delete;
    apThread & operator=(apThread const &) = delete;

    bool started() const { return m_started; } ///< false when the system had no thread to give
    void join();                               ///< returns when the task has ended; again at once after that

private:
    std::thread m_thread;
    bool m_started = false;
};
