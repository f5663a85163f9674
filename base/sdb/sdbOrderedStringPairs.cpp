#include "sdb/sdbOrderedStringPairs.h"

utString sdbOrderedStringPairs::string1(utString const & string2) const
{
    for (auto const & pair : m_pairs)
        if (pair.string2() == string2)
            return pair.string1();
    return {};
}

utString sdbOrderedStringPairs::string2(utString const & string1) const
{
    for (auto const & pair : m_pairs)
        if (pair.string1() == string1)
            return pair.string2();
    return {};
}
