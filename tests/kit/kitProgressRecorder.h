#pragma once

#include "sglNlsHelp.h"
#include "sglProgressDialogBase.h"
#include "sglTranslation.h"

#include <functional>
#include <string>
#include <thread>
#include <vector>

/// A progress dialog that keeps what the driver tells it and lets the run go on without a window.
class kitProgressRecorder : public sglProgressDialogBase {
public:
    kitProgressRecorder() : sglProgressDialogBase(nullptr, nullptr, "DLG_DUMMY") {}

    std::vector<std::string> told;
    int last_percent = -1;
    bool ended = false;
    std::function<void()> at_first_tick;

    vmrnlsDisplayer * output_display() override { return new Silence; }
    vmrnlsDisplayer * error_display() override { return new Silence; }
    int progress(int percent) override
    {
        if (at_first_tick)
            std::exchange(at_first_tick, nullptr)();
        return std::exchange(last_percent, percent) < percent;
    }
    void fileLabel(utString const & file) override { last_file = file; }
    void operationLabel(utString const & label) override { last_label = label; }
    void reset() override { clear_cancelled(); }
    void translation_cancelled() override { end("cancelled"); }
    void translation_ended_ok() override { end("ok"); }
    void translation_error(utString const & text) override { end("error: " + text.str()); }
    int begin(sglTranslation const * translation) override
    {
        getNlsHelp()->set_translating(1);
        Unlock();
        wxTimer timer;
        while (!ended) {
            wxTimerEvent tick(timer);
            const_cast<sglTranslation *>(translation)->ProcessEvent(tick);
            std::this_thread::yield();
        }
        return wxID_OK;
    }

    utString last_file;
    utString last_label;

private:
    struct Silence : vmrnlsDisplayer {
        void display(char const *) override {}
    };
    void end(std::string const & outcome)
    {
        told.push_back(outcome);
        ended = true;
    }
};
