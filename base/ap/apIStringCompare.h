#pragma once

#include "ap/apString.h"

/// An order of platform strings.
class apIStringCompare {
public:
    virtual ~apIStringCompare() = default;
    virtual int compare(apString const & a, apString const & b) const = 0; ///< negative, 0 or positive
};
