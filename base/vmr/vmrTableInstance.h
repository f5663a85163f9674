#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "vmr/coResourceTable.h"
#include "vmr/vmrFileState.h"

/// The resource table of one format in use: the values of a resource file, and beside them the overrides for
/// the present piece of work. A value in table() goes before one in default_table().
///
/// A copy has tables of its own; only shallow_copy shares them. Instances that share tables belong to one
/// thread.
class vmrTableInstance {
public:
    vmrTableInstance() = default; ///< empty, and invalid()
    explicit vmrTableInstance(
        char const * file); ///< null gives an empty instance; otherwise the file is loaded
    vmrTableInstance(vmrTableInstance const & other);
    vmrTableInstance & operator=(vmrTableInstance const & other);

    /// Takes on fresh tables, with the values of `file` and no overrides, and records the name. Zero when the
    /// file cannot be read; the default table is then empty, and the instance valid all the same.
    int initialise(utString const & file);

    void set_resource_file(utString const & file) { m_file = file; } ///< records the name and reads nothing
    utString const & resource_file() const { return m_file; }

    coResourceTable * table() const { return m_table.get(); }                 ///< null only while invalid()
    coResourceTable * default_table() const { return m_default_table.get(); } ///< the same

    /// Puts an override into table(), in its neutral form; an invalid instance gets a table for it and stays
    /// invalid. Zero, changing nothing, when the resource is registered and the text is no legal value of it.
    int add_resource(utString const & name, utString const & value);
    /// Puts an override into table() without looking at its value. One that is not legal has no effect, but a
    /// translation tells the user of it.
    void add_as_it_stands(coResourceBase const & resource);
    void add_as_it_stands(utString const & name, utString const & value);

    int invalid() const { return !m_default_table; }
    int modified() const { return m_table && !m_table->empty(); } ///< whether there are overrides
    void reset();                                                 ///< drops tables and file name

    /// Whether initialise on the resource file would surely give the default table as it stands: neither has
    /// changed since the file was read.
    int is_as_loaded() const;

    /// What initialise found wrong in the file, a text each, which names the file and the line.
    std::vector<std::string> const & problems() const { return m_problems; }

    void shallow_copy(vmrTableInstance const & other); ///< shares the tables, and leaves the file name alone
    /// Shares the default table alone, with the file name, and has no overrides.
    void share_defaults(vmrTableInstance const & other);
    void own_overrides(); ///< gives this instance a table() that no other one shares
    void deep_copy(vmrTableInstance const & other); ///< the tables and the file name

    /// The first legal value among the override, the file's value and the built-in default, in the neutral
    /// form; invalid when there is none. A resource that is not registered has no built-in default, and all
    /// its texts are legal.
    utString effective_value(utString const & name) const;

    /// The effective values of all resources of the two tables, as a translator takes them. One that is in
    /// neither table is absent here, which leaves it at its built-in default.
    std::map<std::string, std::string> effective_values() const;

    /// The overrides that have no effect because their texts are no legal values: names to texts.
    std::map<std::string, std::string> refused_overrides() const;

private:
    void take_loaded_state(vmrTableInstance const & other);
    void set_override(utString const & name, utString const & value);

    utString m_file;
    std::shared_ptr<coResourceTable> m_default_table;
    std::shared_ptr<coResourceTable> m_table;
    std::vector<std::string> m_problems;
    utString m_loaded_file = utString::make_invalid();
    vmrFileState m_loaded_state;
    std::uint64_t m_loaded_revision = 0;
};
