#pragma once

#include <string>

#include "engineKit.h"

/// Batches on the fake host; the entries have their outputs in the folder "out".
class BatchTest : public EngineTest {
protected:
    s2sTranslationElements entry(std::string const & name, std::string const & script);

    /// A named pipe, for scripts that wait for each other.
    std::string fifo(std::string const & name) const;

    /// Takes the next section off the text as the progress dialogs do.
    static std::string cut_section(std::string & text);
    /// The step of a script that says a text to the stream "output" or "error".
    static std::string say(std::string const & stream, std::string const & text);
    static std::string say_progress(int percent);
};
