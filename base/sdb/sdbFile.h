#pragma once

#include <string>

#include "ap/apIFileOperations.h"
#include "ap/apPathName.h"
#include "ut/utString.h"

/// The parts of a path that sdbFile::path_element gives.
enum sdbPathElement {
    sdbPathDirectory = 1, ///< with the separator at its end, so that a name can follow
    sdbPathName = 2,      ///< of the file, without extension
    sdbPathExtension = 3  ///< without its dot
};

/// What a path names.
enum sdbFileType { sdbFileNothing = 0, sdbFileRegular = 1, sdbFileDirectory = 2, sdbFileOther = 3 };

/// A small file: it is read and written whole. Only a path is kept, and each operation looks at the disk
/// anew.
class sdbFile {
public:
    /// The operations are not owned.
    sdbFile(apPathName path, apIFileOperations const * files) : m_path(std::move(path)), m_files(files) {}

    apPathName const & path() const { return m_path; }
    /// The element of that number as text, empty when the path has none; see sdbPathElement.
    utString path_element(int element) const;
    sdbFileType file_type() const;

    /// Makes an empty file; `mode` is 2, for output. 0 when something has the name already, or when the file
    /// cannot be made.
    int create_file(int mode) const;
    int read(std::string & content) const;        ///< 0 when there is no file that can be read
    int write(std::string const & content) const; ///< replaces the file whole; 0 when it cannot be written

    /// True when both paths lead to one file, whatever links lie between; where one does not exist yet, when
    /// they would be the same file.
    friend bool operator==(sdbFile const & a, sdbFile const & b);

    /// The path with the separators of this platform.
    static utString backslashify(utString const & path);

private:
    apPathName m_path;
    apIFileOperations const * m_files;
};
