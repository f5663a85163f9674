#include "sdb/sdbSearchPath.h"

#include "ap/apPosixOperations.h"
#include "ap/apStringEncodingChooser.h"
#include "vmr/vmrabsAppInfo.h"

apPathName sdbSearchPath::directory_path(bool & found) const
{
    found = !m_directories.empty();
    return found ? m_directories.front() : apPathName();
}

utString sdbSearchPath::ut_path_string(apIStringEncoding const * encoding) const
{
    if (!encoding)
        encoding = apStringEncodingChooser::ut_encoding();
    utString text;
    for (auto const & directory : m_directories) {
        if (!text.empty())
            text += utString(std::string(1, vmrabsAppInfo::path_separator));
        text += encoding->to_ut(directory.string());
    }
    return text;
}

apPathName sdbSearchPath::find_file(apFileName const & name) const
{
    apPosixFileOperations const files;
    if (!name.empty())
        for (auto const & directory : m_directories)
            if (auto const path = directory.adjoin(name); files.is_file(path))
                return path;
    return {};
}
