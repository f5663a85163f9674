#include "sdb/sdbTranslatorSearchPath.h"

std::vector<std::string> sdbTranslatorSearchPath::directories() const
{
    std::vector<std::string> directories;
    for (auto const & directory : m_search_path.directories())
        directories.push_back(directory.utf8());
    return directories;
}

bool sdbTranslatorSearchPath::manifests(std::string const & directory,
                                        std::vector<std::string> & manifests) const
{
    manifests.clear();
    std::vector<apPathName> paths;
    if (!m_finder->find(apPathName::from_utf8(directory), L"json", paths))
        return false;
    for (auto const & path : paths)
        manifests.push_back(path.utf8());
    return true;
}
