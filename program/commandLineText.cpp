#include "commandLineText.h"

namespace {

/// A word that brings its own quotes, as an item of -res_opt may: it is passed on as it is.
bool is_quoted(std::string const & word)
{
    return word.size() > 2 && word.front() == '"' && word.find('"', 1) == word.size() - 1;
}

/// A name that begins with a blank or a double quote is reached by the same file's name in the present
/// directory, because in front of a word both mean something else.
std::string protected_start(std::string const & word)
{
    bool const at_risk = !word.empty() && (word[0] == ' ' || word[0] == '"');
    return at_risk ? "./" + word : word;
}

} // namespace

vmrCommandLineText vmr_command_line_text(std::vector<std::string> const & words)
{
    vmrCommandLineText result;
    for (auto const & given : words) {
        std::string const word = is_quoted(given) ? given : protected_start(given);
        bool const needs_quotes = !is_quoted(word) && (word.empty() || word.find(' ') != std::string::npos);
        if (needs_quotes && word.find('"') != std::string::npos && result.impossible_word.empty())
            result.impossible_word = given;
        if (!result.text.empty())
            result.text += ' ';
        result.text += needs_quotes ? '"' + word + '"' : word;
    }
    return result;
}
