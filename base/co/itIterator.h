#pragma once

#include <memory>
#include <utility>
#include <vector>

/// What stands behind an itIterator: a walk over values that begins before the first one.
template <class T>
class itIteratorObject {
public:
    virtual bool undefined() const = 0; ///< there is nothing to iterate over, not even an end
    virtual std::unique_ptr<itIteratorObject>
    clone() const = 0;                ///< a walk of its own that stands at the same place
    virtual bool operator++() = 0;    ///< moves on, at the first call to the first element; false at the end
    virtual T operator()() const = 0; ///< the current element; only after ++ has given true
    virtual ~itIteratorObject() = default;
};

/// The iterator handle of the catalogues: it owns its walk, and a copy walks on its own from the same place.
template <class T>
class itIterator {
public:
    using value_type = T;

    itIterator() = default; ///< an undefined one
    explicit itIterator(std::unique_ptr<itIteratorObject<T>> object) : m_object(std::move(object)) {}
    itIterator(itIterator const & other) : m_object(other.m_object ? other.m_object->clone() : nullptr) {}
    itIterator(itIterator && other) noexcept = default;
    itIterator & operator=(itIterator other) noexcept
    {
        m_object = std::move(other.m_object);
        return *this;
    }

    bool undefined() const { return !m_object || m_object->undefined(); }
    /// Moves on, at the first call to the first element; false at the end and for an undefined iterator.
    bool operator++() { return m_object && ++*m_object; }
    T operator()() const { return (*m_object)(); } ///< only after ++ has given true

private:
    std::unique_ptr<itIteratorObject<T>> m_object;
};

/// A walk over values that were copied when it was made.
template <class T>
class itVectorIteratorObject : public itIteratorObject<T> {
public:
    explicit itVectorIteratorObject(std::vector<T> values)
        : m_values(std::make_shared<std::vector<T> const>(std::move(values)))
    {
    }
    bool undefined() const override { return false; }
    std::unique_ptr<itIteratorObject<T>> clone() const override
    {
        return std::make_unique<itVectorIteratorObject<T>>(*this);
    }
    bool operator++() override
    {
        if (m_next < m_values->size()) {
            ++m_next;
            return true;
        }
        return false;
    }
    T operator()() const override { return (*m_values)[m_next - 1]; }

private:
    std::shared_ptr<std::vector<T> const> m_values;
    std::size_t m_next = 0;
};

template <class T>
itIterator<T> it_iterator_over(std::vector<T> values)
{
    return itIterator<T>(std::make_unique<itVectorIteratorObject<T>>(std::move(values)));
}
