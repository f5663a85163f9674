#include "pages/sglReachedFile.h"

#include <filesystem>

sglReachedFile::sglReachedFile(utString const & path) : m_path(path), m_identity(ap_file_identity(path.str()))
{
}

bool sglReachedFile::is(utString const & other) const
{
    if (other == m_path)
        return true;
    if (m_identity)
        return ap_file_identity(other.str()) == m_identity;
    // A file that is not there has a name in a folder.
    std::filesystem::path const one = m_path.str(), two = other.str();
    return one.filename() == two.filename() &&
           ap_same_file(one.parent_path().native(), two.parent_path().native());
}
