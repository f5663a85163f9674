#pragma once

#include <memory>
#include <string>
#include <vector>

#include "sdb/sdbTranslatorModule.h"

/// The file "translators.lst": what a scan of the translator directories found, so that a start needs to open
/// neither manifests nor modules. The first line holds a name, the version of the form and a check sum of all
/// that follows; behind it stands one JSON object with the directories, modules (manifests whole) and
/// failures, each file with its stamp.
class sdbTranslatorCache {
public:
    /// What the file at `path` holds, or null when it is absent, damaged, of another version or out of date:
    /// when the directories searched are not `directories`, a module lies elsewhere, or any stamp differs
    /// from what lies on the disk now.
    static std::shared_ptr<sdbCatalogueContents const> read(std::string const & path,
                                                            std::vector<std::string> const & directories);

    /// Writes the file whole or not at all. Returns why it could not, or an empty text.
    static std::string write(std::string const & path, sdbCatalogueContents const & contents);
};
