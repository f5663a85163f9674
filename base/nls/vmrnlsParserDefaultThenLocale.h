#pragma once

#include "ut/utString.h"

/// Reads numbers as a user types them: first in the default form, with "." as decimal point, then in the form
/// of the user's locale. The whole text has to be the number, but for blanks at both ends; "3mm", "0x10",
/// "inf" and an empty text are errors. `error` becomes non-zero on a failure and keeps its value otherwise;
/// the result of a failure is the number that stands at the front of the text, 0 for none.
class vmrnlsParserDefaultThenLocale {
public:
    virtual int parse_int(utString const & text, int & error) const;
    virtual double parse_double(utString const & text, int & error) const;
    virtual ~vmrnlsParserDefaultThenLocale() = default;
};
