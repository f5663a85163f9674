#pragma once

#include <map>
#include <mutex>

#include "ani/aniUsageRecord.h"
#include "ap/apString.h"

/// Records which formats are read and written, once it has been initialised and as long as the user agrees.
/// Any thread.
class s2sAnalytics {
public:
    s2sAnalytics() = default;
    virtual ~s2sAnalytics() = default;

    /// `folder` is where the user's choice and the records are kept, see aniUsageRecord; it need not exist,
    /// and nothing is made here. `version` stands in each record. Non-zero unless `folder` is empty, as it is
    /// for a user who has no place for files.
    int initialise(apString const & product, apString const & folder, apString const & version);
    bool is_initialised() const;
    aniUsageRecord usage_record() const; ///< without a place before it has been initialised

    /// What is recorded, on one line with tabs between: the time (UTC), "read" or "write", the format, the
    /// size of the file where it has one, the product and its version. No names of files or folders.
    virtual void read_file(apString const & file, apString const & format);
    virtual void write_file(apString const & file, apString const & format);

    int num_read(apString const & format) const; ///< recorded since it was initialised
    int num_written(apString const & format) const;

private:
    void record(char const * operation, apString const & file, apString const & format,
                std::map<apString, int> & counts);

    mutable std::mutex m_mutex;
    apString m_product;
    apString m_version;
    aniUsageRecord m_record;
    std::map<apString, int> m_read;
    std::map<apString, int> m_written;
};
