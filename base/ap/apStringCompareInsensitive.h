#pragma once

#include "ap/apIStringCompare.h"
#include "ap/apIStringEncoding.h"
#include "ut/utPtr.h"
#include "ut/utString.h"

/// Compares by code point with letters of either case counting as equal, letters beyond ASCII too, whatever
/// the current locale is.
class apStringCompareInsensitive : public apIStringCompare {
public:
    /// The encoding says how 8-bit strings are read; it must outlive this object.
    explicit apStringCompareInsensitive(utObserverPtr<apIStringEncoding const> encoding)
        : m_encoding(encoding)
    {
    }

    int compare(apString const & a, apString const & b) const override;
    int compare_ut(utString const & a, utString const & b) const;

private:
    utObserverPtr<apIStringEncoding const> m_encoding;
};
