#pragma once

#include "co/coStrings.h"
#include "sdu/sduStartupInfo.h"
#include "ut/utString.h"

/// The ways of being started.
enum sglRunStyle {
    sglRunStyleExpert = 2,
    sglRunStyleGraphics = 3,
    sglRunStyleCommandLine = 4,
    sglRunStyleAutomation = 5
};

/// Looks at the raw command line once and says how the program was started. The array holds the file
/// arguments.
class sglDetermineRunStyle : public utStringcoPageArr {
public:
    /// Asks `info` when the command line is empty, and writes the default of a first start to it. A second
    /// call on the same object does not clear the list first.
    sglRunStyle determine_run_style(utString const & command_line, sduStartupInfo & info);

    int num_file_arguments() const { return count(); }
    utString const & file_argument(int index) const { return (*this)[index]; }

protected:
    /// Takes the next word off the front of `line`; double quotes hold a word with blanks together. Returns 0
    /// when nothing is left.
    int get_next_argument(utString & line, utString & word) const;
    int begins_with_hyphen(utString const & word);

private:
    sglRunStyle style_without_arguments(sduStartupInfo & info) const;
};
