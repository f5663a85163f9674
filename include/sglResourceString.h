#pragma once

#include "ut/utString.h"
#include "ut/utTextArguments.h"

/// A message that stands as a literal at its place of use: a key `context::text` with its domain.
class sglGUIString {
public:
    sglGUIString(utString key, char const * domain) : m_key(std::move(key)), m_domain(domain) {}

    utString process() const { return process({}); }
    utString process(utTextArguments const & arguments) const; ///< translated, formatted, variables replaced

protected:
    utString translate(utString const & key) const { return translate(key, {}); }
    utString translate(utString const & key, utTextArguments const & arguments) const;
    utString substitute(utString const & text) const;

private:
    utString m_key;
    char const * m_domain;
};

/// The numbered messages of one domain.
class sglStringTableString {
public:
    explicit sglStringTableString(char const * domain) : m_domain(domain) {}

    utString process(unsigned int id,
                     utTextArguments const & arguments) const; ///< empty for an unknown number

protected:
    utString get_string(unsigned int id) const; ///< the key as it stands in the table

private:
    char const * m_domain;
};

/// Adds the library's numbered messages to their domain. Called once, before anything reads a string.
void sgl_build_string_table();

/// The finished text of a numbered message.
template <class... Arguments>
utString sglResourceString(char const * domain, unsigned int id, Arguments const &... arguments)
{
    return sglStringTableString(domain).process(id, ut_text_arguments(arguments...));
}
