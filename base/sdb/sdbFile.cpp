#include "sdb/sdbFile.h"

#include <algorithm>
#include <filesystem>

#include "ap/apFileIdentity.h"
#include "ap/apPathSeparator.h"
#include "ap/apSplitPath.h"

namespace {

constexpr int output_mode = 2;

std::filesystem::path resolved(std::string const & path)
{
    std::error_code error;
    auto const absolute = std::filesystem::absolute(path, error);
    auto const result = std::filesystem::weakly_canonical(absolute, error);
    return error ? absolute.lexically_normal() : result;
}

} // namespace

utString sdbFile::path_element(int element) const
{
    utString directory, name, extension;
    apSplitPath::split_path(utString(m_path.utf8()), directory, name, extension);
    switch (element) {
    case sdbPathDirectory:
        if (!directory.empty() && directory[directory.length() - 1] != apPathSeparator)
            directory += utString(std::string(1, apPathSeparator));
        return directory;
    case sdbPathName:
        return name;
    case sdbPathExtension:
        return extension;
    default:
        return {};
    }
}

sdbFileType sdbFile::file_type() const
{
    if (m_files->is_file(m_path))
        return sdbFileRegular;
    if (m_files->is_directory(m_path))
        return sdbFileDirectory;
    return m_files->exists(m_path) ? sdbFileOther : sdbFileNothing;
}

int sdbFile::create_file(int mode) const
{
    if (mode != output_mode || file_type() != sdbFileNothing)
        return 0;
    return write({});
}

int sdbFile::read(std::string & content) const
{
    return m_files->read_file(m_path, content) ? 1 : 0;
}

int sdbFile::write(std::string const & content) const
{
    return m_files->replace_file(m_path, content) ? 1 : 0;
}

bool operator==(sdbFile const & a, sdbFile const & b)
{
    auto const & a_path = a.m_path.utf8();
    auto const & b_path = b.m_path.utf8();
    if (a_path.empty() || b_path.empty())
        return a_path == b_path;
    return ap_same_file(a_path, b_path) || resolved(a_path) == resolved(b_path);
}

utString sdbFile::backslashify(utString const & path)
{
    auto text = path.str();
    std::replace(text.begin(), text.end(), '/', apPathSeparator);
    return path.invalid() ? path : utString(std::move(text));
}
