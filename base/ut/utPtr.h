#pragma once

#include <utility>

/// Tag arguments that say in a call whether ownership of a raw pointer passes.
enum utPtrClaimTag { utPtrClaim };     ///< the callee takes the object over and deletes it in the end
enum utPtrReleaseTag { utPtrRelease }; ///< the callee gives the object up to the caller

/// A pointer that looks and does not own: it says in an interface that no ownership passes. May be null.
template <class T>
class utObserverPtr {
public:
    utObserverPtr() = default;
    utObserverPtr(T * pointer) : m_pointer(pointer) {}
    template <class U>
    utObserverPtr(utObserverPtr<U> const & other) : m_pointer(other.get())
    {
    }

    T * get() const { return m_pointer; }
    T * operator->() const { return m_pointer; }
    T & operator*() const { return *m_pointer; }
    explicit operator bool() const { return m_pointer != nullptr; }

private:
    T * m_pointer = nullptr;
};
