#pragma once

#include <utility>

#include "ap/apString.h"

/// The name of a file without its directory.
class apFileName {
public:
    apFileName() = default;
    apFileName(wchar_t const * name) : m_name(name) {}
    explicit apFileName(apString name) : m_name(std::move(name)) {}
    static apFileName from_utf8(std::string_view bytes) { return apFileName(apString::from_utf8(bytes)); }

    apString const & string() const { return m_name; }
    std::string const & utf8() const { return m_name.utf8(); }
    bool empty() const { return m_name.empty(); }
    apString extension() const; ///< without the dot; empty when there is none
    apFileName
    change_extension(apString const & extension) const; ///< given without the dot; empty removes it

    friend bool operator==(apFileName const &, apFileName const &) = default;
    friend auto operator<=>(apFileName const & a, apFileName const & b) { return a.m_name <=> b.m_name; }

private:
    apString m_name;
};
