#pragma once

/// The work of a thread.
class apIThreadTask {
public:
    virtual ~apIThreadTask() = default;
    virtual void run() = 0; ///< on the new thread; no exception may leave it
};
