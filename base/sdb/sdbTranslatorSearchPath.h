#pragma once

#include <string>
#include <vector>

#include "sdb/sdbIFindByExtension.h"
#include "sdb/sdbSearchPath.h"

/// The places where translators are looked for.
class sdbTranslatorSearchPath {
public:
    /// The finder is not owned.
    sdbTranslatorSearchPath(sdbSearchPath search_path, sdbIFindByExtension const * finder)
        : m_search_path(std::move(search_path)), m_finder(finder)
    {
    }

    std::vector<std::string> directories() const;
    /// The manifests in one of the directories, in the order of their names. False when it cannot be read.
    bool manifests(std::string const & directory, std::vector<std::string> & manifests) const;

private:
    sdbSearchPath m_search_path;
    sdbIFindByExtension const * m_finder;
};
