#pragma once

#include "sdk/sdkModule.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// Keeps what a reader or writer says.
class kitReporter : public sdkReporter {
public:
    void message(sdkStream stream, sdkText const & text) override;

    std::vector<std::string> outputs;
    std::vector<std::string> errors;
    // Texts whose conversions do not fit their arguments.
    std::vector<std::string> misfits;

    // True when a message of either stream contains the text.
    bool says(std::string const & text) const;
};

// One side of a translation without the host: a manifest, options as the engine would send them, and what was
// said.
class kitSide {
public:
    using Values = std::map<std::string, std::string>;

    // The manifest is a file in the sources.
    kitSide(std::string const & manifest, std::string const & format, Values const & values,
            std::string const & file);

    sdkContext & context() { return *m_context; }
    kitReporter & reporter() { return m_reporter; }

private:
    kitReporter m_reporter;
    std::optional<sdkOptions> m_options;
    std::optional<sdkContext> m_context;
};

// True when the text has the part in it.
bool kit_contains(std::string const & text, std::string const & part);

// Both steps, the second only after a good first one; a reader that gives no shapes, or a writer that
// processed nothing, is left alone after the first.
sdkResult kit_read(sdkReader & reader, std::string const & path, sdkDocument & document);
sdkResult kit_write(sdkWriter & writer, sdkDocument & document, kitReporter const & reporter,
                    std::string const & path);
