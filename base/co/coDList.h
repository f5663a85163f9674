#pragma once

#include <iterator>
#include <list>
#include <utility>

#include "co/coIterator.h"

/// A doubly linked list that is also reached by index: a cursor remembers the element asked for last, so that
/// a walk by rising or falling index is linear. Indices are not checked. The cursor moves in const operations
/// too, so even readers must not share a list between threads.
template <class T>
class coDList {
public:
    using value_type = T;
    using iterator = typename std::list<T>::iterator;
    using const_iterator = typename std::list<T>::const_iterator;
    using coIterator = ::coIterator<coDList<T>>;

    coDList() = default;
    coDList(coDList const & other) : m_elements(other.m_elements) {}
    coDList(coDList && other) noexcept : m_elements(std::move(other.m_elements)) { other.clear(); }
    coDList & operator=(coDList other) noexcept
    {
        m_elements.swap(other.m_elements);
        reset_cursor();
        return *this;
    }

    int count() const { return static_cast<int>(m_elements.size()); }
    bool empty() const { return m_elements.empty(); }
    T & operator[](int index) { return *seek(index); }
    T const & operator[](int index) const { return *seek(index); }

    void append(T element)
    {
        m_elements.push_back(std::move(element));
        reset_cursor();
    }
    /// Puts the element before the one at `index`; an index equal to the count appends.
    void insert(int index, T element)
    {
        m_elements.insert(seek(index), std::move(element));
        reset_cursor();
    }
    void remove(int index)
    {
        m_elements.erase(seek(index));
        reset_cursor();
    }
    void clear()
    {
        m_elements.clear();
        reset_cursor();
    }

    iterator begin() { return m_elements.begin(); }
    iterator end() { return m_elements.end(); }
    const_iterator begin() const { return m_elements.begin(); }
    const_iterator end() const { return m_elements.end(); }

private:
    void reset_cursor() const
    {
        m_cursor = m_elements.begin();
        m_cursor_index = 0;
    }
    iterator seek(int index) const
    {
        if (m_cursor_index < 0)
            reset_cursor();
        std::advance(m_cursor, index - m_cursor_index);
        m_cursor_index = index;
        return m_cursor;
    }

    mutable std::list<T> m_elements;
    mutable iterator m_cursor;
    mutable int m_cursor_index = -1;
};
