#pragma once

#include <deque>
#include <utility>

/// A queue: first in, first out.
template <class T>
class coQueue {
public:
    int count() const { return static_cast<int>(m_elements.size()); }
    bool empty() const { return m_elements.empty(); }
    void append(T element) { m_elements.push_back(std::move(element)); }
    T & first() { return m_elements.front(); }             ///< only when not empty
    T const & first() const { return m_elements.front(); } ///< only when not empty
    /// Takes the first element out; only when not empty.
    T take_first()
    {
        T element = std::move(m_elements.front());
        m_elements.pop_front();
        return element;
    }
    void clear() { m_elements.clear(); }

private:
    std::deque<T> m_elements;
};
