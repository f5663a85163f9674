#pragma once

#include <initializer_list>
#include <utility>

#include "co/coIterator.h"

/// What the two kinds of array have in common, over the standard container that holds the elements. Indices
/// are not checked.
template <class T, class Storage>
class coArray {
public:
    using value_type = T;
    using iterator = typename Storage::iterator;
    using const_iterator = typename Storage::const_iterator;
    using coIterator = ::coIterator<coArray>;

    coArray() = default;
    coArray(std::initializer_list<T> elements) : m_elements(elements) {}

    int count() const { return static_cast<int>(m_elements.size()); }
    bool empty() const { return m_elements.empty(); }
    T & operator[](int index) { return m_elements[static_cast<std::size_t>(index)]; }
    T const & operator[](int index) const { return m_elements[static_cast<std::size_t>(index)]; }

    void append(T element) { m_elements.push_back(std::move(element)); }
    void insert(int index, T element) { m_elements.insert(m_elements.begin() + index, std::move(element)); }
    /// The element at `index`, which is not negative; an array that is too short grows first, and its count
    /// becomes `index` + 1.
    T & at_grow(int index)
    {
        if (index >= count())
            m_elements.resize(static_cast<std::size_t>(index) + 1);
        return (*this)[index];
    }
    void remove(int index) { m_elements.erase(m_elements.begin() + index); }
    void clear() { m_elements.clear(); }

    iterator begin() { return m_elements.begin(); }
    iterator end() { return m_elements.end(); }
    const_iterator begin() const { return m_elements.begin(); }
    const_iterator end() const { return m_elements.end(); }

private:
    Storage m_elements;
};
