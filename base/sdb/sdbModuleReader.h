#pragma once

#include <memory>
#include <string>

#include "sdb/sdbTranslatorModule.h"

/// Reads one module's manifest from its file. The module itself is not opened.
class sdbModuleReader {
public:
    explicit sdbModuleReader(std::string manifest_path);

    /// Null, with failure() telling why, when the manifest cannot be used or the module is missing.
    std::shared_ptr<sdbTranslatorModule const> read();

    sdbTranslatorModuleFailure const & failure() const { return m_failure; }

    /// The module that belongs to a manifest: the same name with the extension of a module.
    static std::string module_path(std::string const & manifest_path);

private:
    std::shared_ptr<sdbTranslatorModule const> fail(std::string const & file, std::string reason);

    sdbTranslatorModuleFailure m_failure;
};
