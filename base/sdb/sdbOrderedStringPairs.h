#pragma once

#include "sdb/sdbStringPair.h"

/// The values of an enumeration, in the order in which they were added.
class sdbOrderedStringPairs {
public:
    void add_pair(utString const & string1, utString const & string2) { m_pairs.append({string1, string2}); }

    /// The stored text for a shown one, and the shown text for a stored one. Of several pairs that fit the
    /// first counts; without one the result is empty.
    utString string1(utString const & string2) const;
    utString string2(utString const & string1) const;

    /// Walks this object's pairs, which must outlive the walk and not change during it.
    sdbStringPaircoPageArrcoIterator iterator() const { return sdbStringPaircoPageArrcoIterator(m_pairs); }

private:
    sdbStringPaircoPageArr m_pairs;
};
