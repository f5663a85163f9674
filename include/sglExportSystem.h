#pragma once

#include "co/utStringutStringcoTable.h"
#include "ut/utString.h"

/// A target system for which an output format can be set up: a name and the resource values that it needs.
class sglExportSystem {
public:
    void set_system_name(utString const & name) { m_name = name; }
    utString const & get_system_name() const { return m_name; }

    /// The last value of a resource counts. One that is not registered in this run, or a value that is not
    /// legal, is passed over.
    void add_override(utString const & resource, utString const & value);

private:
    friend class sglExportSystemIT;

    utString m_name;
    utStringutStringcoTable m_overrides{4, 50};
};

/// A walk over the overrides of a system, which must live and stay as it is meanwhile. It stands before the
/// first one in the beginning.
class sglExportSystemIT {
public:
    explicit sglExportSystemIT(sglExportSystem const & system) : m_table(system.m_overrides) { reset(); }

    int operator++();               ///< to the next override; zero when there is none
    utString resource() const;      ///< empty while undefined()
    utString const & value() const; ///< empty while undefined()
    int undefined() const { return !m_started || m_position == m_table.end(); }
    void reset();

private:
    utStringutStringcoTable const & m_table;
    utStringutStringcoTable::const_iterator m_position;
    bool m_started = false;
};
