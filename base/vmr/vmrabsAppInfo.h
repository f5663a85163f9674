#pragma once

#include <map>

#include "ut/utString.h"

class apIStringEncoding;
class sduServices;

/// What the components know of the program in which they run: its identity, the two encodings of its strings,
/// its services and where its files lie. It is set up at start-up on one thread and afterwards only read, on
/// any.
class vmrabsAppInfo {
public:
    /// Stands between the directories of a search path.
    static constexpr char path_separator = ':';

    vmrabsAppInfo(utString const & program, utString const & os, utString const & user,
                  utString const & organisation, utString const & remark);

    utString const & program() const { return m_program; }
    utString const & os() const { return m_os; }
    utString const & user() const { return m_user; }
    utString const & organisation() const { return m_organisation; }
    utString const & remark() const { return m_remark; }

    void set_info(utString const & key, utString const & value);
    utString info(utString const & key) const; ///< invalid for a key that was never set

    void set_build_number(utString const & text) { m_build_number = text; }
    utString const & build_number() const { return m_build_number; }

    /// The encoding of all 8-bit strings, and that of the platform's multi-byte strings. Not owned; null
    /// until set.
    void set_ut_encoding(apIStringEncoding const * encoding) { m_ut_encoding = encoding; }
    apIStringEncoding const * ut_encoding() const { return m_ut_encoding; }
    void set_mb_encoding(apIStringEncoding const * encoding) { m_mb_encoding = encoding; }
    apIStringEncoding const * mb_encoding() const { return m_mb_encoding; }

    /// Not owned; null until set.
    void set_services(sduServices * services) { m_services = services; }
    sduServices * services() const { return m_services; }

    /// The search path of a subject such as "resources"; invalid for a subject that was never set.
    void set_schema_path(utString const & subject, utString const & path_text);
    utString schema_path(utString const & subject) const;

    /// The path of the file `name` in the first directory of `path_text` that has it; invalid when none has.
    static utString find_file_in_path(utString const & path_text, utString const & name);

private:
    utString m_program;
    utString m_os;
    utString m_user;
    utString m_organisation;
    utString m_remark;
    utString m_build_number;
    std::map<utString, utString> m_info;
    std::map<utString, utString> m_schema_paths;
    apIStringEncoding const * m_ut_encoding = nullptr;
    apIStringEncoding const * m_mb_encoding = nullptr;
    sduServices * m_services = nullptr;
};
