#pragma once

#include <vector>

#include "ap/apIStringCompare.h"
#include "ap/apIStringEncoding.h"
#include "co/itIterator.h"
#include "sdb/sdbUntranslatedFilterElement.h"

enum sglFilterAllFiles { sglFILTER_ALL_FILES = 0 };

/// One entry of the filters of a file dialog in the user's language: a label, a vertical bar and a pattern.
/// The text is empty for a format that has no entry.
class sglTranslatedFilterElement {
public:
    /// The encoding is not owned.
    sglTranslatedFilterElement(sdbUntranslatedFilterElement const & element,
                               apIStringEncoding const * encoding);
    /// The entry for all files. Its text ends in a bar.
    sglTranslatedFilterElement(sglFilterAllFiles, apIStringEncoding const * encoding);

    utString translated_filter_string() const;
    apString const & ap_translated_filter_string() const { return m_text; }
    int category_order() const { return m_category_order; }

private:
    apIStringEncoding const * m_encoding;
    apString m_text;
    int m_category_order;
};

/// The order of the entries: by category, and in a category by text.
class sglTranslatedFilterElementOrder {
public:
    explicit sglTranslatedFilterElementOrder(apIStringCompare const * compare) : m_compare(compare) {}

    bool operator()(sglTranslatedFilterElement const & a, sglTranslatedFilterElement const & b) const;

private:
    apIStringCompare const * m_compare;
};

/// The filters of all formats of a catalogue in order, and behind them the one for all files.
class sglTranslatedFilter {
public:
    /// Encoding and comparison are not owned; the comparison is used here only.
    sglTranslatedFilter(itIterator<sdbUntranslatedFilterElement> elements, apIStringEncoding const * encoding,
                        apIStringCompare const * compare);

    /// Labels and patterns with a bar behind each. The text ends in two bars; sgl_toolkit_filter makes of it
    /// what a file dialog of the toolkit takes.
    utString translated_filter_string() const;
    apString ap_translated_filter_string() const;

private:
    std::vector<sglTranslatedFilterElement> m_elements;
    apIStringEncoding const * m_encoding;
};
