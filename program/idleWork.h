#pragma once

#include "sglIdleQueue.h"

#include <functional>
#include <utility>

/// Work for when the program is idle. The work after it may follow at once.
class vmrIdleWork : public sglIdleItem {
public:
    explicit vmrIdleWork(std::function<void()> work) : m_work(std::move(work)) {}

    int execute() override
    {
        m_work();
        return 1;
    }

private:
    std::function<void()> m_work;
};

inline void vmr_add_idle_work(std::function<void()> work)
{
    sglIdleQueue::instance().add_pending_item(utPtrClaim, new vmrIdleWork(std::move(work)));
}
