#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ap/apFileName.h"
#include "ap/apFileResult.h"
#include "ap/apIStringCompare.h"
#include "ap/apPathName.h"

/// The file system. Links are followed. Every operation may be called from any thread.
class apIFileOperations {
public:
    virtual ~apIFileOperations() = default;

    virtual bool exists(apPathName const & path) const = 0;
    virtual bool is_file(apPathName const & path) const = 0; ///< a regular file
    virtual bool is_directory(apPathName const & path) const = 0;
    /// The caller may make and replace files in the directory.
    virtual bool is_writable_directory(apPathName const & path) const = 0;
    virtual apFileResult size(apPathName const & path, std::uint64_t & bytes) const = 0;

    /// The names in the directory in order of their bytes, "." and ".." left out.
    virtual apFileResult list_directory(apPathName const & directory,
                                        std::vector<apFileName> & names) const = 0;
    /// The paths of the regular files whose extension, given without the dot, is equal under `compare`, in
    /// order of their bytes.
    virtual apFileResult list_by_extension(apPathName const & directory, apString const & extension,
                                           apIStringCompare const & compare,
                                           std::vector<apPathName> & paths) const = 0;

    /// Reads a regular file whole; one of more than `limit` bytes is refused.
    virtual apFileResult read_file(apPathName const & path, std::string & content,
                                   std::size_t limit = std::size_t(64) << 20) const = 0;
    /// Gives the file new content, or makes it, in one step that an interruption cannot cut in half.
    /// Permissions of an existing file stay; a link stays and what it points to is replaced.
    virtual apFileResult replace_file(apPathName const & path, std::string_view content) const = 0;
    /// Whether replace_file would be allowed to: an existing file that may not be written counts as not
    /// allowed.
    virtual bool can_replace_file(apPathName const & path) const = 0;
    /// Copies the content; `to` appears whole or not at all and has the permissions of a new file. A file is
    /// not copied onto itself.
    virtual apFileResult copy(apPathName const & from, apPathName const & to) const = 0;
    virtual apFileResult rename(apPathName const & from, apPathName const & to) const = 0;
    virtual apFileResult remove(apPathName const & path) const = 0; ///< a file, not a directory

    /// Makes one directory, which its owner can read, write and enter. Fails with file_exists when there is
    /// one.
    virtual apFileResult make_directory(apPathName const & path) const = 0;
    /// The same with all that is missing above it; a directory that exists is a success.
    virtual apFileResult make_directories(apPathName const & path) const = 0;
    virtual apPathName temp_directory() const = 0; ///< empty when there is none
};
