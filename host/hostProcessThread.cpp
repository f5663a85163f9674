#include "host/hostProcessThread.h"

#include <utility>

hostProcessThread::hostProcessThread() : m_thread([this] { work(); }) {}

hostProcessThread::~hostProcessThread()
{
    {
        std::lock_guard const lock(m_mutex);
        m_ended = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void hostProcessThread::run(std::function<void()> task)
{
    std::unique_lock lock(m_mutex);
    m_task = std::move(task);
    m_changed.notify_all();
    m_changed.wait(lock, [this] { return !m_task; });
}

void hostProcessThread::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_task || m_ended; });
        if (!m_task) {
            return;
        }
        m_task();
        m_task = nullptr;
        m_changed.notify_all();
    }
}
