#pragma once

#include <memory>

#include "sdb/sdbTranslatorModule.h"
#include "sdb/sdbTranslatorSearchPath.h"

/// Reads every manifest in the directories of the search path, in order. Modules are looked at, not opened.
/// Where two modules have a format of the same name, the second one fails.
std::shared_ptr<sdbCatalogueContents const> sdb_scan_translators(sdbTranslatorSearchPath const & search_path);
