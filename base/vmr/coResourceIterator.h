#pragma once

#include "vmr/coResourceTable.h"

/// A walk over a table that stands before the first resource at first. The table must outlive the walk, and
/// the resource on which the walk stands must not be removed during it. A null table has no resources.
class coResourceIterator {
public:
    explicit coResourceIterator(coResourceTable const * table) : m_table(table) {}

    /// Moves on, at the first call to the first resource. Zero when there is none.
    int operator++();
    /// The current resource; null before the first ++ and at the end.
    coResourceBase const * operator()() const { return m_current; }

private:
    coResourceTable const * m_table;
    std::map<utString, coResourceTable::Resource>::const_iterator m_next;
    coResourceBase const * m_current = nullptr;
    bool m_started = false;
};
