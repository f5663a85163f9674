#pragma once

#include <map>
#include <optional>
#include <string>

#include "sdu/sduStartupFile.h"
#include "ut/utString.h"

/// The persistent named text fields of "startup.hrk". Used on one thread. Values read back exactly as they
/// were set, line ends, blanks and bytes of any kind included.
class sduStartupInfo {
public:
    /// Reads the file in place of all that the table held. Where there is none that can be read, no field is
    /// set and using_defaults() says so.
    virtual void load(char const * path);
    virtual ~sduStartupInfo() = default;

    sduStartupInfo() = default;
    sduStartupInfo(sduStartupInfo const &) = default;
    sduStartupInfo & operator=(sduStartupInfo const &) = default;

    utString find_field(utString const & key) const; ///< invalid when there is no such field

    /// Sets the field and saves the file at once, with what other programs wrote into it meanwhile. An
    /// invalid value removes the field. Where saving fails the value holds for this run and using_defaults()
    /// says so.
    void add_field(utString const & key, utString const & value);
    /// Sets the field for this run only; no later save takes it along.
    void add_field_without_saving(utString const & key, utString const & value);

    int changed() const;        ///< non-zero when the file on disk differs from what was last read or saved
    int using_defaults() const; ///< non-zero when no file that can be written stands behind the table

private:
    bool save(utString const & key, utString const & value);

    std::string m_path;
    sduStartupFile m_file;
    std::optional<std::string>
        m_content; ///< of the file when it was last read or saved; none when there was none
    bool m_backed = false;
    std::map<utString, utString> m_this_run;
};
