#pragma once

#include <optional>
#include <string>
#include <vector>

#include <sys/stat.h>

#include "ap/apFileDescriptor.h"
#include "ap/apFileIdentity.h"

/// A folder that is held open. What is done in it stays in it, whatever another user puts in the place of its
/// path meanwhile, and none of its operations follows a symbolic link. Names are those of entries, without a
/// slash. What fails leaves the system's error in errno.
class apFolder {
public:
    apFolder() = default; ///< none
    /// The folder of that path, whose links are followed. Not is_open() when it cannot be entered; one that
    /// can be entered and not read has no names() and cannot be synchronised.
    static apFolder open(std::string const & path);
    apFolder open_folder(std::string const & name) const; ///< also ".", for a second hold on this one
    /// Makes a folder and opens it. Another user who may write here can put something else in its place
    /// before it is opened; what holds anything is therefore refused.
    apFolder make_folder(std::string const & name, ::mode_t mode) const;
    apFileDescriptor open_file(std::string const & name, int flags, ::mode_t mode = 0) const;

    bool is_open() const { return m_folder.open(); }
    int descriptor() const { return m_folder.get(); }
    std::optional<apFileIdentity> identity() const; ///< of the folder itself

    std::optional<struct stat> status(std::string const & name) const; ///< of a link, the link
    std::optional<struct stat> status() const;                         ///< of the folder itself
    /// Whether the entry is this folder.
    bool has_under(std::string const & name, apFolder const & folder) const;
    std::vector<std::string> names() const; ///< in no order; none when the folder cannot be read

    bool remove_file(std::string const & name) const;
    bool remove_folder(std::string const & name) const; ///< when it is empty
    /// Removes all entries but `kept`. Of folders those that have the owner of this one and lie on the same
    /// file system go, with all that they hold.
    void remove_contents(std::string const & kept = {}) const;
    apFileResult sync() const; ///< returns when the disk has the names

private:
    explicit apFolder(apFileDescriptor folder) : m_folder(std::move(folder)) {}

    apFileDescriptor m_folder;
};
