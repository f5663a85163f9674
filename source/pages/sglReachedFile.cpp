#include "pages/sglReachedFile.h"

namespace {

std::string_view file_name(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string folder(std::string_view path)
{
    return std::string(path.substr(0, path.rfind('/') + 1));
}

} // namespace

sglReachedFile::sglReachedFile(utString const & path) : m_path(path), m_identity(ap_file_identity(path.str()))
{
}

bool sglReachedFile::is(utString const & other) const
{
    if (other == m_path)
        return true;
    if (m_identity)
        return ap_file_identity(other.str()) == m_identity;
    // A file that is not there has a name in a folder. A queue may hold thousands, so the names go first.
    return file_name(m_path.view()) == file_name(other.view()) &&
           ap_same_file(folder(m_path.view()), folder(other.view()));
}
