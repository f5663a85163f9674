#pragma once

#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "sdb/sdbFileStamp.h"
#include "sdb/sdbFormatDeclaration.h"

/// The string-table domain of the texts of all modules and of the translation process.
inline constexpr char const * sdb_module_domain = "vmrhost";

/// One translator module: its files, what they looked like when the manifest was read, and what the manifest
/// says.
struct sdbTranslatorModule {
    std::string manifest_path;
    std::string module_path;
    sdbFileStamp manifest_stamp;
    sdbFileStamp module_stamp;
    std::shared_ptr<nlohmann::json const> manifest;
    std::vector<sdbFormatDeclaration> formats;
};

/// A module that could not be taken into the catalogue.
struct sdbTranslatorModuleFailure {
    std::string manifest_path;
    std::string module_path;
    sdbFileStamp manifest_stamp;
    sdbFileStamp module_stamp;
    std::string file; ///< the one of the two that is to blame
    std::string reason;
};

/// A directory that was searched for modules.
struct sdbTranslatorDirectoryStamp {
    std::string path;
    sdbFileStamp stamp;
};

/// All that a scan of the translator directories found, or that the cache of such a scan holds.
struct sdbCatalogueContents {
    std::vector<sdbTranslatorDirectoryStamp> directories;
    std::vector<std::shared_ptr<sdbTranslatorModule const>> modules;
    std::vector<sdbTranslatorModuleFailure> failures;
};
