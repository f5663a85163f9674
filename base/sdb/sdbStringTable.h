#pragma once

#include "ut/utString.h"

/// The numbered message keys of one domain, such as those of a library. The rows are added at start-up and
/// stay to the end of the process, whatever becomes of the object that added them.
class sdbStringTable {
public:
    explicit sdbStringTable(char const * domain);

    void add_string(unsigned int id, char const * text); ///< a number added again takes the new text

    /// The key, with its context; empty for a number or a domain that is not known. Any thread.
    static utString find_string(char const * domain, unsigned int id);

private:
    utString m_domain;
};
