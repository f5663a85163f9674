#include "sglResourceHandler.h"

#include "sglNlsHelp.h"

bool sglValidator::validate_int(utString const &, utString const & value)
{
    int error = 0;
    getNlsHelp()->string_to_int(value, error);
    return error == 0;
}

bool sglValidator::validate_double(utString const &, utString const & value)
{
    int error = 0;
    getNlsHelp()->string_to_double(value, error);
    return error == 0;
}

// The base only stores the observer, so that it may be made before the member that it observes.
sglResourceHandler::sglResourceHandler(utString const & name)
    : sdbResourceHandler(utObserverPtr<sdbValidator>(&m_validator), name)
{
}
