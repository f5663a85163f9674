#pragma once

#include "ut/utString.h"

/// Says which texts are numbers for the user. `name` is the resource that the number is for.
class sdbValidator {
public:
    virtual bool validate_int(utString const & name, utString const & value) = 0;
    virtual bool validate_double(utString const & name, utString const & value) = 0;
    virtual ~sdbValidator() = default;

    /// The number that a text says; asked only for a text that the operation above has let pass. False when
    /// there is none. By themselves these take the neutral form of numbers, with blanks around it, and for
    /// reals also the decimal signs "," and "\u066b" in place of the ".".
    virtual bool read_int(utString const & value, long long & number);
    virtual bool read_double(utString const & value, double & number);
};
