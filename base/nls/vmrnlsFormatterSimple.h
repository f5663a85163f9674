#pragma once

#include "nls/vmrnlsFormatter.h"

/// The formatter for numbers with a given decimal point. It takes each argument as what it is: a number given
/// to %s is shown, a text given to %d too, and an integer is never cut to the size that a length modifier
/// names. A conversion without an argument is shown as it is written; arguments without a conversion are left
/// out. Widths and precisions of texts count characters. The result does not depend on the locale of the
/// process.
class vmrnlsFormatterSimple : public vmrnlsFormatter {
public:
    explicit vmrnlsFormatterSimple(
        utString const & decimal_point); ///< one character; an empty text gives "."

    utString format(utString const & text, utTextArguments const & arguments) const override;

private:
    utString m_decimal_point;
};
