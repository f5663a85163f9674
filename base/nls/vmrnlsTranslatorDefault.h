#pragma once

#include "nls/vmrnlsTranslator.h"

/// The translator that leaves every text in English.
class vmrnlsTranslatorDefault : public vmrnlsTranslator {
public:
    utString translate(char const * domain, char const * key) const override;
};
