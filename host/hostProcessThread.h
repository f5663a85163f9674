#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

// The thread that makes and ends processes for the others. It begins before they give up that right, and code
// of modules never runs on it.
class hostProcessThread {
public:
    hostProcessThread();
    ~hostProcessThread();
    hostProcessThread(hostProcessThread const &) = delete;
    hostProcessThread & operator=(hostProcessThread const &) = delete;

    // Runs the task on that thread and waits for it. The task does not throw. For one thread at a time.
    void run(std::function<void()> task);

private:
    void work();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::function<void()> m_task;
    bool m_ended = false;
    std::thread m_thread;
};
