#pragma once

#include <map>
#include <mutex>

#include "ap/apString.h"

/// Records how often formats are read and written. Nothing is recorded before it has been initialised. Any
/// thread.
class s2sAnalytics {
public:
    s2sAnalytics() = default;
    virtual ~s2sAnalytics() = default;

    /// `file` is where the records are kept, one line of JSON for each file read or written; `installation`
    /// stands in each record and may be empty. Non-zero when the file can be appended to.
    int initialise(apString const & product, apString const & file, apString const & installation);
    bool is_initialised() const;

    virtual void read_file(apString const & file, apString const & format);
    virtual void write_file(apString const & file, apString const & format);

    int num_read(apString const & format) const; ///< since it was initialised
    int num_written(apString const & format) const;

private:
    void record(char const * operation, apString const & file, apString const & format,
                std::map<apString, int> & counts);

    mutable std::mutex m_mutex;
    bool m_initialised = false;
    apString m_product;
    apString m_file;
    apString m_installation;
    std::map<apString, int> m_read;
    std::map<apString, int> m_written;
};
