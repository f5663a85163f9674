#pragma once

#include "ap/apString.h"
#include "ut/utString.h"

/// The name of a format, as users see it.
class sdbFormatName {
public:
    sdbFormatName() = default;
    explicit sdbFormatName(apString name) : m_name(std::move(name)) {}
    ~sdbFormatName() = default;
    sdbFormatName(sdbFormatName const &) = default;
    sdbFormatName & operator=(sdbFormatName const &) = default;

    apString const & string() const { return m_name; }
    utString ut_string() const { return utString(m_name.utf8()); }

    friend bool operator==(sdbFormatName const &, sdbFormatName const &) = default;

private:
    apString m_name;
};
