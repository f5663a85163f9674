#pragma once

#include "sdk/sdkAccount.h"
#include "sdk/sdkOptions.h"
#include "sdk/sdkPromise.h"
#include "sdk/sdkReporter.h"

#include <string>

// What the host lends a reader or writer: the options of its side, the reporter, and the name under which the
// user knows the file (for an output the final one, which is not the path that the writer is given).
class sdkContext {
public:
    sdkContext(sdkOptions const & options, sdkReporter & reporter, std::string file)
        : m_options(options), m_reporter(reporter), m_file(std::move(file))
    {
    }

    sdkOptions const & options() const { return m_options; }
    sdkReporter & reporter() const { return m_reporter; }
    std::string const & file() const { return m_file; }
    // For readers: what the file holds, and what of it could not be translated.
    sdkAccount & account() { return m_account; }
    sdkAccount const & account() const { return m_account; }
    // For writers: what the output will be.
    sdkPromise & promise() { return m_promise; }
    sdkPromise const & promise() const { return m_promise; }

private:
    sdkOptions const & m_options;
    sdkReporter & m_reporter;
    std::string m_file;
    // Modules that were built before these were here do not look beyond what stands above.
    sdkAccount m_account;
    sdkPromise m_promise;
};
