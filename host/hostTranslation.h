#pragma once

#include "host/hostChannel.h"
#include "host/hostFindings.h"
#include "host/hostJob.h"
#include "host/hostVerification.h"

#include "sdk/sdkModule.h"

#include <Message_ProgressScope.hxx>

#include <set>
#include <string>
#include <vector>

class hostModule;

class hostReporter : public sdkReporter {
public:
    explicit hostReporter(hostEvents & events) : m_events(events) {}
    void message(sdkStream stream, sdkText const & text) override { m_events.message(stream, text); }

private:
    hostEvents & m_events;
};

// Runs one job from the first input to the written output.
class hostTranslation {
public:
    hostTranslation(hostJob const & job, hostEvents & events, std::atomic<bool> const & cancelled,
                    hostProcessThread & thread);

    // Whatever a reader or writer throws is turned into a result, whose text has been told. A failed
    // translation leaves no output file. Every one that was not cancelled has told its verdict, if one is
    // wanted.
    sdkResult run();

    sdkReporter const & reporter() const { return m_reporter; }

private:
    sdkResult translate();
    void tell(std::vector<sdkText> const & problems);
    sdkResult read(hostFile const & input, sdkDocument & document, Message_ProgressRange const & range);
    sdkResult write(sdkDocument & document, Message_ProgressRange const & range);
    sdkResult write_file(hostModule const & module, sdkContext & context, sdkDocument & document,
                         Message_ProgressScope & scope);

    hostJob const & m_job;
    hostEvents & m_events;
    std::atomic<bool> const & m_cancelled;
    hostReporter m_reporter;
    hostFindings m_findings;
    // Told only if the writer does not keep what they call lost.
    std::vector<sdkFinding> m_annotations;
    hostVerification m_verification;
    std::set<std::string> m_told; // problems of options
    std::string m_file;
    bool m_writing = false;
    bool m_output_begun = false;
};
