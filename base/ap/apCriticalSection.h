#pragma once

#include <memory>

#include "ap/apISynchOperations.h"

/// A section that one thread at a time is in; a thread that is in it may enter again and leaves as often.
class apCriticalSection {
public:
    /// The operations are used here only; null stands for those of the platform.
    explicit apCriticalSection(apISynchOperations const * operations);

    void enter() { m_lock->enter(); }
    void leave() { m_lock->leave(); }

private:
    std::unique_ptr<apILock> m_lock;
};

/// Is in the section for as long as it lives.
class apCriticalSectionScope {
public:
    explicit apCriticalSectionScope(apCriticalSection & section) : m_section(section) { m_section.enter(); }
    ~apCriticalSectionScope() { m_section.leave(); }
    apCriticalSectionScope(apCriticalSectionScope const &) = delete;
    apCriticalSectionScope & operator=(apCriticalSectionScope const &) = delete;

private:
    apCriticalSection & m_section;
};
