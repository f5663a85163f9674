#pragma once

#include <string>
#include <vector>

/// The words of the command line as the one text that the library reads: divided by blanks, a word with
/// blanks in double quotes.
struct vmrCommandLineText {
    std::string text;
    /// The first word that such a text cannot hold, because it has both a blank and a double quote; else
    /// empty.
    std::string impossible_word;
};

/// `words` are the arguments without the program's own name.
vmrCommandLineText vmr_command_line_text(std::vector<std::string> const & words);
