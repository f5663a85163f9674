#pragma once

#include <memory>
#include <vector>

#include "sglExportSystem.h"

/// The export systems of a text file, a block of lines each:
///
///     the name of the system, the whole line
///     <resource> <value>          any number of lines; the value goes to the end of the line
///     #                           closes the block, and may be followed by any text
///
/// A line is at most 1023 bytes long and ends with a line end; what follows a longer one is not read. A block
/// that is not closed is dropped. An override line without a blank is passed over. There are no comments: a
/// "#" where a name is expected makes the file unusable.
class sglExportOptionsFile {
public:
    void set_options_file(utString const & path) { m_file = path; }
    utString const & get_options_file() const { return m_file; } ///< invalid until set

    int use_default_options_file(); ///< non-zero when the installation, or the user, has one
    /// Adds the systems of the file to those that are here. Zero when there are none, or the file cannot be
    /// used.
    int read_options_file();

    int num_systems() const { return static_cast<int>(m_systems.size()); }
    sglExportSystem const * system(int index) const; ///< in the order of the file; null outside
    /// The first system of exactly that name, or null.
    sglExportSystem const * find_named_system(utString const & name) const;
    int invalid() const { return m_file.invalid() || m_systems.empty(); }

private:
    std::vector<std::unique_ptr<sglExportSystem>> m_systems;
    utString m_file = utString::make_invalid();
};
