#pragma once

#include "sdb/sdbResourceHandler.h"
#include "sdb/sdbValidator.h"

/// Judges numbers in option fields by the user's locale.
class sglValidator : public sdbValidator {
public:
    bool validate_int(utString const & name, utString const & value) override;
    bool validate_double(utString const & name, utString const & value) override;
};

/// Moves one resource's value between a table and its text form. Built on the stack around one name, used and
/// gone.
class sglResourceHandler : public sdbResourceHandler {
public:
    explicit sglResourceHandler(utString const & name);

private:
    sglValidator m_validator;
};
