#pragma once

#include <utility>

#include "ap/apFileName.h"
#include "ap/apString.h"

/// The path of a file or directory: pure text, nothing here looks at the disk. The empty path is the invalid
/// one.
class apPathName {
public:
    apPathName() = default;
    apPathName(wchar_t const * path) : m_path(path) {}
    explicit apPathName(apString path) : m_path(std::move(path)) {}
    apPathName(apPathName const & directory, apFileName const & name);
    static apPathName from_utf8(std::string_view bytes) { return apPathName(apString::from_utf8(bytes)); }

    apString const & string() const { return m_path; }
    std::string const & utf8() const { return m_path.utf8(); } ///< the bytes, as the file system takes them
    bool empty() const { return m_path.empty(); }
    bool invalid() const { return m_path.empty(); }
    bool absolute() const;

    /// This directory with the name behind it, one separator between the two. An empty directory gives the
    /// name.
    apPathName adjoin(apFileName const & name) const;
    /// The same for a relative path; an absolute one comes out unchanged.
    apPathName adjoin(apPathName const & tail) const;

    apPathName
    directory() const; ///< without a separator at its end, but for the root; empty when there is none
    apFileName file_name() const; ///< what stands behind the last separator
    apString extension() const;   ///< of the last component, without the dot; empty when there is none
    apPathName
    change_extension(apString const & extension) const; ///< given without the dot; empty removes it

    friend bool operator==(apPathName const &, apPathName const &) = default;
    friend auto operator<=>(apPathName const & a, apPathName const & b) { return a.m_path <=> b.m_path; }

private:
    apString m_path;
};
