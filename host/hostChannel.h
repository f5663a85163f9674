#pragma once

#include "host/hostEvents.h"
#include "host/hostJob.h"
#include "host/hostKeeper.h"

#include <atomic>
#include <mutex>
#include <string>
#include <thread>

// The engine's end of the connection as seen from here: descriptor 0 with the job and its cancel, and the
// events.
class hostChannel {
public:
    explicit hostChannel(hostEvents & events);

    // Waits for the job; false with a text when what comes is none.
    bool read_job(hostJob & job, std::string & problem);

    // Starts the thread that watches for commands and for the end of the connection, with which the process
    // ends, and sends events that wait. The thread lives as long as the process: neither the channel nor the
    // keeper, which hears of further folders, may be destroyed after this.
    void watch(hostKeeper & keeper);

    // True once the engine has asked to stop.
    std::atomic<bool> const & cancelled() const { return m_cancelled; }

    // Ends the process with all events sent. Any thread may call it; the first one wins.
    [[noreturn]] void finish(sdkStatus status, std::int64_t processed, std::int64_t failed);

private:
    void run();
    bool read_some();
    void take_commands();
    void take_command(std::string const & line);
    [[noreturn]] void abandon();

    hostEvents & m_events;
    bool m_connected = false;
    std::string m_input;
    hostKeeper * m_keeper = nullptr;
    std::atomic<bool> m_cancelled{false};
    std::mutex m_finishing;
    std::thread m_watcher;
};
