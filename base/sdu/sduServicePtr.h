#pragma once

#include <memory>
#include <typeinfo>

/// The base of the holders in which services are kept and asked for.
class sduBaseServicePtr {
public:
    virtual std::unique_ptr<sduBaseServicePtr>
    make_new() const = 0; ///< a holder of the same type and pointer
    /// Takes over the pointer of a holder of the same type; any other is refused with false and changes
    /// nothing.
    virtual bool copy_in(sduBaseServicePtr const & other) = 0;
    virtual ~sduBaseServicePtr() = default;

protected:
    sduBaseServicePtr() = default;
    sduBaseServicePtr(sduBaseServicePtr const &) = default;
    sduBaseServicePtr & operator=(sduBaseServicePtr const &) = default;
};

/// A holder of one pointer to a service, not owned.
template <class T>
class sduServicePtr : public sduBaseServicePtr {
public:
    sduServicePtr() = default;
    explicit sduServicePtr(T * pointer) : m_pointer(pointer) {}

    std::unique_ptr<sduBaseServicePtr> make_new() const override
    {
        return std::make_unique<sduServicePtr>(*this);
    }
    bool copy_in(sduBaseServicePtr const & other) override
    {
        if (typeid(other) != typeid(*this))
            return false;
        m_pointer = static_cast<sduServicePtr const &>(other).m_pointer;
        return true;
    }
    T * pointer() const { return m_pointer; }

private:
    T * m_pointer = nullptr;
};
