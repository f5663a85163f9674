#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "sdb/sdbFormatDeclaration.h"

/// Reads the manifest of a translator module; docs/host-protocol.md has the form. Of a format, "signatures",
/// "viewer" and "default_output" may be absent, and fields that are not known are passed over.
class sdbManifestReader {
public:
    /// The version of the module interface that this program serves.
    static constexpr int interface_version = 1;

    /// `manifest_path` is what the messages name.
    explicit sdbManifestReader(std::string manifest_path) : m_path(std::move(manifest_path)) {}

    /// False, with problem() telling why, when the manifest cannot be used.
    bool read(nlohmann::json const & manifest);

    std::vector<sdbFormatDeclaration> & formats() { return m_formats; }
    std::string const & problem() const { return m_problem; } ///< names the manifest and the field

private:
    std::string m_path;
    std::vector<sdbFormatDeclaration> m_formats;
    std::string m_problem;
};
