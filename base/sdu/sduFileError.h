#pragma once

/// How a file operation of this folder ended, or what a check found.
enum sduFileError {
    sduFileDone = 1,            ///< done; a directory was made
    sduFileNotFound = 2,        ///< nothing has that name
    sduFileAccessDenied = 3,    ///< the system does not allow it
    sduFileIOError = 4,         ///< anything else that went wrong: no space, a broken disk, a name too long
    sduFileProtected = 5,       ///< the file is being kept from harm, see sduFileProtection
    sduFileExists = 6,          ///< a file of that name exists
    sduFileDirectoryExists = 7, ///< a directory of that name exists
};
