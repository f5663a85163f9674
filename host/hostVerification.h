#pragma once

#include "host/hostEvents.h"
#include "host/hostFindings.h"
#include "host/hostJob.h"
#include "host/hostVerdict.h"
#include "host/hostWitness.h"
#include "sdk/sdkContext.h"
#include "sdk/sdkResult.h"

#include <Message_ProgressRange.hxx>

#include <atomic>
#include <chrono>
#include <memory>

// How much of an output is held against its source: the general option vmrOptVerify of the output.
enum class hostVerificationLevel { none, counts, full };

// What a job asks for. A format that does not declare the option has all of it.
hostVerificationLevel host_verification_level(hostJob const & job);

// Finds the verdict on one translation.
class hostVerification {
public:
    hostVerification(hostJob const & job, hostEvents & events, std::atomic<bool> const & cancelled,
                     hostProcessThread & thread);

    bool wanted() const { return m_level != hostVerificationLevel::none; }

    // To be called with the document that the writer is about to get. `readable` says whether the module of
    // the output has a reader for its format.
    void begin(sdkDocument const & document, sdkOptions const & options, bool readable);

    // To be called when the output is written: the output begins to be read back.
    void ask(sdkContext const & writer);

    // To be called after that: tells findings and verdict. Completed, or cancelled, or a
    // write error when the output cannot be read back and its writer has not found it whole either.
    sdkResult conclude(sdkContext & writer, hostFindings & findings, Message_ProgressRange const & range);

    // To be called when the translation has ended and there is no output: tells the verdict on that, unless
    // nobody wants one or the user has cancelled.
    void conclude_without_output(sdkStatus status, hostFindings & findings, sdkReporter & reporter);

private:
    std::chrono::milliseconds limit() const;
    bool engine_grows_impatient() const;

    hostJob const & m_job;
    hostEvents & m_events;
    std::atomic<bool> const & m_cancelled;
    hostProcessThread & m_thread;
    hostVerificationLevel m_level;
    bool m_readable = false;
    std::unique_ptr<hostWitness> m_witness;
    std::chrono::steady_clock::time_point m_begun{};
    std::chrono::milliseconds m_limit{};
    bool m_reason_told = false; // why there is nothing to compare
};
