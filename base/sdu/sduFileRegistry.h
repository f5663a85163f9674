#pragma once

#include <map>
#include <mutex>

#include "ap/apFileIdentity.h"

/// Which files are protected, and how often. Whoever removes or replaces a file holds the lock from the look
/// here to the end of the deed, so that a protection that begins meanwhile is not too late.
class sduFileRegistry {
public:
    static sduFileRegistry & instance();

    std::mutex & mutex() { return m_mutex; }
    void add(apFileIdentity const & file) { ++m_protections[file]; } ///< with the lock held, as all of these
    void remove(apFileIdentity const & file);
    bool contains(apFileIdentity const & file) const { return m_protections.contains(file); }

private:
    std::mutex m_mutex;
    std::map<apFileIdentity, int> m_protections;
};
