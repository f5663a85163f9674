#pragma once

#include <optional>

#include "ap/apFileIdentity.h"
#include "ut/utString.h"

/// Keeps a file from harm: as long as one such object lives for a file, sdu_remove_file and sdu_copy_file
/// leave that file alone, by whatever path they are given it. Objects may be made and destroyed on any
/// thread.
class sduFileProtection {
public:
    sduFileProtection() = default;                     ///< protects nothing
    explicit sduFileProtection(utString const & path); ///< protects nothing when no file is there
    ~sduFileProtection() { release(); }
    sduFileProtection(sduFileProtection && other) noexcept;
    sduFileProtection & operator=(sduFileProtection && other) noexcept;

    bool active() const { return m_file.has_value(); }
    void release(); ///< ends the protection early

private:
    std::optional<apFileIdentity> m_file;
};
