#pragma once

#include "host/hostWitness.h"
#include "sdk/measure/sdkInventory.h"
#include "sdk/measure/sdkMeshComparison.h"

#include <Message_ProgressIndicator.hxx>

#include <future>
#include <memory>
#include <optional>
#include <string>
#include <vector>

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

    // What is measured of the source. It takes no longer than writing and reading back, beside which it goes
    // on.
    struct Source {
        sdkInventory inventory;
        std::vector<sdkFinding> faults;
    };

    Source measure_source() const;
    Source const & source() const;
    sdkMeshSource const & mesh_source(bool hidden);
    void begin_mesh_source(bool hidden);
    hostTestimony testify(hostQuestion const & question);
    std::optional<std::vector<sdkFinding>> attempt(hostQuestion const & question, bool repair,
                                                   sdkText & reason);
    std::string read_line() const;

    sdkDocument const & m_document;
    hostEvidence const & m_evidence;
    int m_question;
    int m_answer;
    std::shared_future<Source> m_source;
    std::shared_future<sdkMeshSource> m_mesh_source;
    // Of the latest attempt. They stay to the end of the process, which takes them apart faster.
    std::unique_ptr<Attempt> m_attempt;
    Handle(Message_ProgressIndicator) m_progress;
};
