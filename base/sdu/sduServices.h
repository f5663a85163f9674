#pragma once

#include <map>
#include <memory>

#include "sdu/sduServiceKeys.h"
#include "sdu/sduServicePtr.h"
#include "ut/utString.h"

/// The name of a service.
class sduServiceKey {
public:
    sduServiceKey(utString const & name) : m_name(name) {}
    sduServiceKey(char const * name) : m_name(name) {}
    utString const & name() const { return m_name; }
    friend bool operator<(sduServiceKey const & a, sduServiceKey const & b) { return a.m_name < b.m_name; }

private:
    utString m_name;
};

/// The registry of services. It is filled at start-up on one thread and then only read, by any thread,
/// without a lock. The services are not owned and must outlive their users.
class sduServices {
public:
    /// Copies the service's pointer into the holder. Gives 0 and leaves the holder alone when the key is
    /// unknown or belongs to another type.
    virtual int find_service(sduServiceKey const & key, sduBaseServicePtr & holder) const;
    virtual ~sduServices();

    sduServices() = default;
    sduServices(sduServices const &) = delete;
    sduServices & operator=(sduServices const &) = delete;

    void add_service(sduServiceKey const & key,
                     sduBaseServicePtr const & service); ///< replaces one of the same key

protected:
    void remove_all_services();

private:
    std::map<sduServiceKey, std::unique_ptr<sduBaseServicePtr>> m_services;
};
