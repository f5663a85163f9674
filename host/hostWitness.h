#pragma once

#include "host/hostProcessThread.h"
#include "host/hostTestimony.h"
#include "sdk/measure/sdkBodyMeasure.h"
#include "sdk/sdkDocument.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

// What the witness works on besides the document.
struct hostEvidence {
    std::string module; // of the output's format
    std::string format;
    sdkMeasureLevel level = sdkMeasureLevel::full;
    bool surfaces = true; // that the output is to have, as the options ask
    bool wireframe = true;
};

// A process that has seen the document as it was before the writer got it. It measures the document while the
// writer works, reads the finished output back and holds the two against each other. It has a process of its
// own because the writer may change the document, and because a broken output may crash its reader. The
// destructor ends it.
class hostWitness {
public:
    // `own_descriptors` are those of this process that the witness must not keep open. The thread, which
    // makes the process, has to last longer than this.
    hostWitness(sdkDocument const & document, hostEvidence const & evidence,
                std::vector<int> const & own_descriptors, hostProcessThread & thread);
    ~hostWitness();
    hostWitness(hostWitness const &) = delete;
    hostWitness & operator=(hostWitness const &) = delete;

    // Asks, once, and returns at once.
    void ask(hostQuestion const & question);

    // Waits for the answer, at most for so long, and not when `hopeless` says so; `progress` gets numbers
    // from 0 to 100. A witness that crashes, that takes longer or that there is none of gives a testimony
    // without a reading, with the reason. A cancelled one is empty.
    hostTestimony answer(
        std::chrono::milliseconds limit, std::atomic<bool> const & cancelled,
        std::function<void(int)> const & progress,
        std::function<bool()> const & hopeless = [] { return false; });

private:
    hostTestimony testimony_from(std::string const & line) const;
    sdkText how_it_ended();
    void end();

    hostProcessThread & m_thread;
    std::string m_format;
    ::pid_t m_process = -1;
    int m_question = -1;
    int m_answer = -1;
    bool m_asked = false;
};
