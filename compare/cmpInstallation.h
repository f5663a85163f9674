#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ap/apPosixOperations.h"
#include "ap/apStringCompareInsensitive.h"
#include "ap/apStringUTF8Encoding.h"
#include "s2s/s2sLimits.h"
#include "s2s/s2sMessage.h"
#include "s2s/s2sTranslatorLoader.h"
#include "sdb/sdbAppDirMap.h"
#include "sdb/sdbTranslatorDlls.h"
#include "vmr/vmrabsAppInfo.h"

/// What belongs to this program on the disk, found from its own place: the formats, those of the user among
/// them, the languages, and the program that reads files.
class cmpInstallation {
public:
    cmpInstallation();

    sdbTranslatorDlls const & formats() const { return *m_input; } ///< those that can be read
    /// Why the user's formats are left out; none when they are not.
    s2sFailure left_out() const;
    std::vector<std::string> language_folders() const;
    std::string host_program() const;
    s2sLimits limits() const; ///< as the user's settings say

private:
    apPosixFileOperations m_files;
    apPosixProcessEnvironmentOperations m_environment;
    apPosixLibraryLoaderOperations m_libraries;
    apStringUTF8Encoding m_encoding;
    apStringCompareInsensitive m_compare{&m_encoding};
    s2sTranslatorLoader m_loader{&m_libraries};
    sdbAppDirMap m_directories{&m_environment};
    vmrabsAppInfo m_info;
    std::unique_ptr<sdbTranslatorDlls> m_input;
};
