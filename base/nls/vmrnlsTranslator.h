#pragma once

#include "ut/utString.h"

/// Gives the text that the user reads for a message key.
class vmrnlsTranslator {
public:
    virtual ~vmrnlsTranslator() = default;

    /// The text of `key` in the current language, without its context and with its conversions still in it;
    /// the English text where there is no other. Any thread.
    virtual utString translate(char const * domain, char const * key) const = 0;
};
