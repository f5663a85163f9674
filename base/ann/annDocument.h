#pragma once

#include "ut/utString.h"

/// The output document handed to a translation: what is to be said about the model in the headers of the
/// files that are written for it. Description and author are invalid until they are set; a format without a
/// place for one of them leaves it out.
class annDocument {
public:
    explicit annDocument(utString const & name) : m_name(name) {}
    annDocument(annDocument const &) = delete;
    annDocument & operator=(annDocument const &) = delete;

    utString const & name() const { return m_name; }

    utString const & description() const { return m_description; }
    void set_description(utString const & description) { m_description = description; }

    utString const & author() const { return m_author; }
    void set_author(utString const & author) { m_author = author; }

private:
    utString m_name;
    utString m_description = utString::make_invalid();
    utString m_author = utString::make_invalid();
};
