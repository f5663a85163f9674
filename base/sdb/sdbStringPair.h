#pragma once

#include "co/coPageArr.h"
#include "ut/utString.h"

/// One value of an enumeration: the text that is stored, and the text that the user sees.
class sdbStringPair {
public:
    sdbStringPair() = default;
    sdbStringPair(utString const & string1, utString const & string2) : m_string1(string1), m_string2(string2)
    {
    }

    utString const & string1() const { return m_string1; } ///< stored
    utString const & string2() const { return m_string2; } ///< shown

private:
    utString m_string1;
    utString m_string2;
};

using sdbStringPaircoPageArr = coPageArr<sdbStringPair>;
using sdbStringPaircoPageArrcoIterator = sdbStringPaircoPageArr::coIterator;
