#include "sglIdleQueue.h"

#include <memory>

namespace {

class Busy {
public:
    explicit Busy(int & flag) : m_flag(flag) { m_flag = 1; }
    ~Busy() { m_flag = 0; }
    Busy(Busy const &) = delete;
    Busy & operator=(Busy const &) = delete;

private:
    int & m_flag;
};

} // namespace

sglIdleQueue::~sglIdleQueue()
{
    while (!empty())
        delete take_first();
}

sglIdleQueue & sglIdleQueue::instance()
{
    static sglIdleQueue queue;
    return queue;
}

void sglIdleQueue::add_pending_item(utPtrClaimTag, sglIdleItem * item)
{
    append(item);
}

int sglIdleQueue::process_pending_item()
{
    if (m_busy || empty())
        return 1;
    Busy const busy(m_busy);
    std::unique_ptr<sglIdleItem> const item(take_first());
    return item->execute();
}
