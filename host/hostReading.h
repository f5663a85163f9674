#pragma once

#include "host/hostJob.h"
#include "sdk/sdkDocument.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkReporter.h"
#include "sdk/sdkResult.h"
#include "sdk/sdkText.h"

#include <Message_ProgressRange.hxx>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

// Reads one file into a document with the module of its format.
class hostReading {
public:
    hostReading(hostFile const & input, sdkReporter & reporter) : m_input(input), m_reporter(reporter) {}

    // `tell` gets what is wrong with the options, before anything is read.
    sdkResult read(sdkDocument & document, Message_ProgressRange const & range,
                   std::function<void(std::vector<sdkText> const &)> const & tell);

    // What the reader has found out, as far as it has come.
    std::vector<sdkFinding> const & findings() const { return m_findings; }
    // How much the file holds, as its reader has counted it; none where the reader keeps no account.
    std::optional<sdkFinding> const & contents() const { return m_contents; }
    // How many things of the file should have given a shape and did not; annotation gives none.
    std::int64_t lost() const { return m_lost; }

private:
    hostFile const & m_input;
    sdkReporter & m_reporter;
    std::vector<sdkFinding> m_findings;
    std::optional<sdkFinding> m_contents;
    std::int64_t m_lost = 0;
};
