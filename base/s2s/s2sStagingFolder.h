#pragma once

#include <filesystem>

#include "ap/apMarkedFolder.h"
#include "s2s/s2sMessage.h"

/// Removes from `folder` the staging folders of processes that are no more. Looks at every name in the
/// folder, so once for a job is enough.
void s2s_remove_left_behind(std::filesystem::path const & folder);

/// A fresh folder beside an output file, in which a translator writes before its work is known to have ended
/// well. It is private to the user, is known again by its mark wherever its path leads meanwhile, and its
/// name holds the number of this process, so that a later run can tell a folder left behind by a process that
/// was killed. The destructor removes it with all that it holds.
class s2sStagingFolder {
public:
    s2sStagingFolder() = default;
    ~s2sStagingFolder();
    s2sStagingFolder(s2sStagingFolder const &) = delete;
    s2sStagingFolder & operator=(s2sStagingFolder const &) = delete;

    /// Makes the folder.
    s2sFailure create(std::filesystem::path const & output);

    std::filesystem::path const & path() const { return m_path; } ///< empty before create
    apMarkedFolder const & folder() const { return m_folder; }
    apFolder const & files() const { return m_folder.folder(); } ///< the mark is among them
    apFolder const & place_of_output() const
    {
        return m_folder.parent();
    } ///< the folder beside which it lies

private:
    std::filesystem::path m_path;
    apMarkedFolder m_folder;
};
