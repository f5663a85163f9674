#pragma once

#include "co/coQueue.h"
#include "ut/utPtr.h"

/// A small unit of work that can wait until the program is idle.
class sglIdleItem {
public:
    /// Zero asks the caller of sglIdleQueue::process_pending_item to stop for now.
    virtual int execute() = 0;
    virtual ~sglIdleItem() = default;
};

using sglIdleItemcoQueuePtrcoPtr = sglIdleItem *;
using sglIdleItemcoQueuePtrcoPtrcoQueue = coQueue<sglIdleItemcoQueuePtrcoPtr>;

/// Work for idle times, done item by item in the order of arrival. The library offers the queue; the program
/// adds the items and drives it. Graphical thread, apart from instance().
class sglIdleQueue : public sglIdleItemcoQueuePtrcoPtrcoQueue {
public:
    sglIdleQueue() = default;
    ~sglIdleQueue(); ///< what still waits is never done
    sglIdleQueue(sglIdleQueue const &) = delete;
    sglIdleQueue & operator=(sglIdleQueue const &) = delete;

    static sglIdleQueue & instance(); ///< the one of the program; any thread may be the first to ask

    void add_pending_item(utPtrClaimTag, sglIdleItem * item); ///< deletes it when it is done

    /// Does the first item and returns what it returned. 1 without doing anything when there is none or when
    /// an item is at work, as in a call from within one that runs an event loop of its own.
    int process_pending_item();

private:
    int m_busy = 0;
};
