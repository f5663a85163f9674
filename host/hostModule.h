#pragma once

#include "sdk/sdkManifest.h"
#include "sdk/sdkModule.h"
#include "sdk/sdkText.h"

#include <memory>
#include <string>

// A format module with its manifest. It stays loaded to the end of the process.
class hostModule {
public:
    // Loads the module that has the format, which must have the side asked for. Null, with a text for the
    // user, when that fails; a module of another interface version is refused before it is opened.
    static std::unique_ptr<hostModule> load(std::string const & path, std::string const & format,
                                            bool for_reading, sdkText & failure);

    std::vector<sdkResource> const & resources() const { return m_manifest.format(m_format)->resources; }
    bool can_read() const { return m_manifest.format(m_format)->reads; }
    // A module that does not keep what its manifest declares throws std::logic_error.
    std::unique_ptr<sdkReader> make_reader(sdkContext & context) const;
    std::unique_ptr<sdkWriter> make_writer(sdkContext & context) const;

private:
    hostModule() = default;

    sdkManifest m_manifest;
    std::string m_path;
    std::string m_format;
    sdkModule const * m_module = nullptr;
};
