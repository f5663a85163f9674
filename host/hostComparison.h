#pragma once

#include "host/hostEvents.h"
#include "host/hostJob.h"
#include "host/hostTranslation.h"
#include "sdk/measure/sdkInventory.h"
#include "sdk/sdkDocument.h"

#include <Message_ProgressRange.hxx>

#include <atomic>
#include <string>
#include <vector>

// Reads two files, measures them and tells what each holds, body by body what is the same, and how they
// differ.
class hostComparison {
public:
    // The job must ask for a comparison.
    hostComparison(hostJob const & job, hostEvents & events, std::atomic<bool> const & cancelled);

    // Whatever a reader throws is turned into a result, whose text has been told. A comparison that came to
    // its end is completed and has told its verdict, whatever that is.
    sdkResult run();

    sdkReporter const & reporter() const { return m_reporter; }

private:
    struct Model {
        char side;
        hostFile const & file;
        sdkDocument document = {};
        sdkInventory inventory = {};
    };

    sdkResult compare();
    sdkResult take(Model & model, Message_ProgressRange const & range);
    void judge();
    void tell(std::vector<sdkFinding> const & findings);
    void end_undecided(sdkText const & reason);

    hostJob const & m_job;
    hostComparisonJob const & m_comparison;
    hostEvents & m_events;
    std::atomic<bool> const & m_cancelled;
    hostReporter m_reporter;
    Model m_a;
    Model m_b;
    std::string m_file;
    std::int64_t m_lost = 0; // what the readers could not translate
    std::int64_t m_differences = 0;
};
