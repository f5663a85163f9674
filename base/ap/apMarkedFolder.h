#pragma once

#include <string>

#include "ap/apFolder.h"

/// A folder that this program has made for files that are still to be finished, and that any process of it
/// knows again: it belongs to the user, is closed to all others, and holds a file, the mark, which tells its
/// name and its number on the file system. A folder that somebody has renamed to look like one has no such
/// mark. While the process that has made it lives, the mark is locked.
class apMarkedFolder {
public:
    static constexpr char const * mark_name = ".vmr-mark"; ///< not to be written to by anybody else
    static constexpr char const * kept_mark_name =
        ".vmr-kept"; ///< the mark's name while nobody may remove it

    apMarkedFolder() = default; ///< none
    /// Makes the folder `name` in `parent`. Not is_open() on failure, with the system's error in errno;
    /// nothing is left then.
    static apMarkedFolder make(apFolder parent, std::string const & name);
    /// Opens one that has been made by make, in this process or another. Not is_open() when what lies there
    /// is anything else.
    static apMarkedFolder open(apFolder parent, std::string const & name);
    static apMarkedFolder open(std::string const & path);

    bool is_open() const { return m_folder.is_open(); }
    apFolder const & folder() const { return m_folder; }
    apFolder const & parent() const { return m_parent; } ///< held since before the folder was looked at
    std::string const & name() const { return m_name; }

    /// Takes the lock of the mark. False while another process, or another object of this one, has it, and
    /// where the file system has no locks.
    bool lock() const;
    /// While it is kept, nobody removes the folder, also when this process is gone: what it holds may not all
    /// be unfinished. False when the system refuses.
    bool set_kept(bool kept) const;
    /// Removes the folder with all that it holds, unless it is kept, also while another thread still writes
    /// there. Where somebody has moved it elsewhere, it stays there and is empty. The mark goes last, so that
    /// one whose removal is cut short is known again.
    void remove() const;

private:
    bool write_mark();
    bool read_mark();
    bool is_own() const;
    std::string mark_text() const;

    apFolder m_parent;
    std::string m_name;
    apFolder m_folder;
    apFileDescriptor m_mark;
};
