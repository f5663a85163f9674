#pragma once

#include "ut/utString.h"

/// Rewrites numbers for display in the user's form.
class sglNumberLocaliser {
public:
    /// The number with two decimals, or an empty string when `text` is no number.
    utString localise_number(utString const & text) const;

    /// For an amount such as "EUR 12.5": the word, one blank and the number with two decimals; an empty
    /// string when there is no blank or no number behind it.
    utString localise_amount(utString const & text) const;
};
