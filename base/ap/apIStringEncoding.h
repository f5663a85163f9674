#pragma once

#include "ap/apString.h"
#include "ut/utString.h"

/// Converts between the 8-bit strings of the system and platform strings. Objects hold no state that changes:
/// any number of threads may use one.
class apIStringEncoding {
public:
    virtual ~apIStringEncoding() = default;

    /// `error` becomes true when `text` is invalid or holds bytes that mean nothing in the encoding; such
    /// bytes are kept, so that to_ut gives them back.
    apString to_ap(utString const & text, bool & error) const { return convert_to_ap(text, error); }
    /// `error` becomes true when `text` holds what the encoding cannot express; it appears as "?".
    utString to_ut(apString const & text, bool & error) const { return convert_to_ut(text, error); }

    apString to_ap(utString const & text) const
    {
        bool error = false;
        return convert_to_ap(text, error);
    }
    utString to_ut(apString const & text) const
    {
        bool error = false;
        return convert_to_ut(text, error);
    }

private:
    virtual apString convert_to_ap(utString const & text, bool & error) const = 0;
    virtual utString convert_to_ut(apString const & text, bool & error) const = 0;
};
