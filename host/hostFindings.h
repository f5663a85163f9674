#pragma once

#include "host/hostEvents.h"
#include "sdk/sdkFinding.h"
#include "sdk/sdkReporter.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// What is found out about a translation. Each finding goes to the engine as data; as messages the user gets
// the first few of a kind and the number of the others.
class hostFindings {
public:
    hostFindings(hostEvents & events, sdkReporter & reporter) : m_events(events), m_reporter(reporter) {}

    // Tells of all of them. Losses and differences are errors, notes are not.
    void tell(std::vector<sdkFinding> const & findings);

    // For records only: the user is told of it otherwise, or need not be while the translation runs.
    void record(sdkFinding const & finding);

    std::int64_t count(sdkWeight weight) const;

private:
    hostEvents & m_events;
    sdkReporter & m_reporter;
    std::map<sdkWeight, std::int64_t> m_counts;
};
