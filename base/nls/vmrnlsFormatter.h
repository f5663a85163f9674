#pragma once

#include "ut/utString.h"
#include "ut/utTextArguments.h"

/// Fills arguments into a message text with printf conversions.
class vmrnlsFormatter {
public:
    virtual ~vmrnlsFormatter() = default;

    /// Any thread.
    virtual utString format(utString const & text, utTextArguments const & arguments) const = 0;
};
