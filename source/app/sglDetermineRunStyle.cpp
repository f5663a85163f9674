#include "sglDetermineRunStyle.h"

#include "sdu/sduStartupKeys.h"

sglRunStyle sglDetermineRunStyle::style_without_arguments(sduStartupInfo & info) const
{
    utString const start = info.find_field(sduSTARTASVIEWER);
    if (start.invalid()) {
        info.add_field(sduSTARTASVIEWER, "yes");
        return sglRunStyleGraphics;
    }
    return start.case_compare("yes") == 0 ? sglRunStyleGraphics : sglRunStyleExpert;
}

sglRunStyle sglDetermineRunStyle::determine_run_style(utString const & command_line, sduStartupInfo & info)
{
    if (command_line.invalid() || command_line.length() < 1)
        return style_without_arguments(info);

    utString rest = command_line;
    utString word;
    get_next_argument(rest, word);
    if (word.case_compare("-expert") == 0)
        return sglRunStyleExpert;
    if (word.case_compare("-graphics") == 0) {
        while (get_next_argument(rest, word))
            append(word);
        return sglRunStyleGraphics;
    }
    if (word.case_compare("-Automation") == 0 || word.case_compare("-Embedding") == 0)
        return sglRunStyleAutomation;
    if (begins_with_hyphen(word)) {
        clear();
        return sglRunStyleCommandLine;
    }

    append(word);
    while (get_next_argument(rest, word)) {
        append(word);
        if (begins_with_hyphen(word)) {
            clear();
            return sglRunStyleCommandLine;
        }
    }
    return sglRunStyleGraphics;
}

int sglDetermineRunStyle::get_next_argument(utString & line, utString & word) const
{
    line.remove_leading_chars(" ");
    if (line[0] != '"')
        return line.extract_string(" ", word);
    line.remove(0, 1);
    int const found = line.extract_string("\"", word);
    line.remove_leading_chars("\"");
    return found;
}

int sglDetermineRunStyle::begins_with_hyphen(utString const & word)
{
    return word[0] == '-' ? 1 : 0;
}
