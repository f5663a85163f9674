#pragma once

#include "host/hostWitness.h"
#include "sdk/measure/sdkInventory.h"
#include "sdk/measure/sdkMeshDistance.h"

#include <Message_ProgressIndicator.hxx>

#include <memory>
#include <optional>
#include <string>

// What goes on in the process of the witness: measures the document, waits for the question, reads the output
// back, compares, answers.
class hostWitnessWork {
public:
    hostWitnessWork(sdkDocument const & document, hostEvidence const & evidence, int question, int answer);

    ~hostWitnessWork();

    // Returns when the answer is sent or nobody asks any more.
    void run();

private:
    struct Attempt;

    hostTestimony testify(hostQuestion const & question);
    std::optional<std::vector<sdkFinding>> attempt(hostQuestion const & question, bool repair,
                                                   sdkText & reason);
    std::string read_line() const;

    sdkDocument const & m_document;
    hostEvidence const & m_evidence;
    int m_question;
    int m_answer;
    sdkInventory m_source;
    // Of the latest attempt. They stay to the end of the process, which takes them apart faster.
    std::unique_ptr<Attempt> m_attempt;
    std::vector<sdkFinding> m_faults; // of the source itself
    Handle(Message_ProgressIndicator) m_progress;
};
