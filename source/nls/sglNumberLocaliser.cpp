#include "sglNumberLocaliser.h"

#include "sglNlsHelp.h"

utString sglNumberLocaliser::localise_number(utString const & text) const
{
    int error = 0;
    double const value = getNlsHelp()->string_to_double(text, error);
    if (error)
        return {};
    return getNlsHelp()->gsprintf("DO_NOT_TRANSLATE", "%01.2f", value);
}

utString sglNumberLocaliser::localise_amount(utString const & text) const
{
    utString rest = text;
    utString word;
    if (!rest.extract_string(" ", word))
        return {};
    rest.remove_leading_chars(" ");
    utString const number = localise_number(rest);
    return number.empty() ? utString() : word + " " + number;
}
