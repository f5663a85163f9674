#pragma once

#include <memory>

/// A lock that a thread may take again while it has it.
class apILock {
public:
    virtual ~apILock() = default;
    virtual void enter() = 0;
    virtual void leave() = 0; ///< once for each enter, on the same thread
};

/// Makes the locks of the system.
class apISynchOperations {
public:
    virtual ~apISynchOperations() = default;
    virtual std::unique_ptr<apILock> make_lock() const = 0;
};
