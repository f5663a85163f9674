#pragma once

/// A walk over a container that stands before the first element at first. The container must outlive the walk
/// and not change its size during it.
template <class Container>
class coIterator {
public:
    explicit coIterator(Container const & container) : m_container(&container) {}

    /// Moves on, at the first call to the first element. False means the end.
    bool operator++() { return ++m_index < m_container->count(); }
    /// The current element; only after ++ has given true.
    typename Container::value_type const & operator()() const { return (*m_container)[m_index]; }
    int index() const { return m_index; }

private:
    Container const * m_container;
    int m_index = -1;
};
