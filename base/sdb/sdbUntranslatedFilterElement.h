#pragma once

#include "ut/utString.h"

/// One entry of a file filter in the words of the translator, before translation into the user's language.
class sdbUntranslatedFilterElement {
public:
    sdbUntranslatedFilterElement() = default;
    sdbUntranslatedFilterElement(utString const & filter_string, utString const & tag, int category_order)
        : m_filter_string(filter_string), m_tag(tag), m_category_order(category_order)
    {
    }

    int category_order() const
    {
        return m_category_order;
    } ///< formats of one category stand together, low ones first
    /// The label and the pattern with "|" between them; empty for a format that has no entry.
    utString const & filter_string() const { return m_filter_string; }
    utString const & tag() const { return m_tag; } ///< the string-table domain of the text

private:
    utString m_filter_string;
    utString m_tag;
    int m_category_order = 0;
};
