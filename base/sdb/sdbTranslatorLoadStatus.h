#pragma once

#include <vector>

#include "ap/apPathName.h"
#include "co/itIterator.h"
#include "ut/utString.h"

/// The state from which a status starts.
enum sdbTranslatorLoadStatusType {
    sdbTranslatorLoadFailed = 0, ///< a failure of some kind other than a file that could not be loaded
    sdbTranslatorLoadStart = 1   ///< no failure so far
};

/// A translator file that could not be loaded, with the reason in English, which names the file.
struct sdbTranslatorLoadFailure {
    apPathName file;
    utString reason;
};

/// What became of loading translators: the failures gather in it. A value, copied freely.
class sdbTranslatorLoadStatus {
public:
    explicit sdbTranslatorLoadStatus(sdbTranslatorLoadStatusType type) : m_type(type) {}
    sdbTranslatorLoadStatus(sdbTranslatorLoadStatus const &) = default;
    sdbTranslatorLoadStatus & operator=(sdbTranslatorLoadStatus const &) = default;
    ~sdbTranslatorLoadStatus() = default;

    bool ok() const { return m_type == sdbTranslatorLoadStart && m_failures.empty(); }
    /// At least one translator file failed, as distinct from a failure of any other kind.
    bool files_failed_to_load() const { return !m_failures.empty(); }
    /// The paths of the files that failed; undefined when there is none.
    itIterator<apPathName> translator_files_failed_to_load() const;

    std::vector<sdbTranslatorLoadFailure> const & failures() const { return m_failures; }
    utString const & other_failure() const
    {
        return m_other_failure;
    } ///< the reason in English; empty without one

    void add_file_failure(apPathName const & file, utString const & reason);
    void add_other_failure(utString const & reason);

private:
    sdbTranslatorLoadStatusType m_type;
    std::vector<sdbTranslatorLoadFailure> m_failures;
    utString m_other_failure;
};
