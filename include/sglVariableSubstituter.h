#pragma once

#include "co/utStringutStringcoTable.h"
#include "ut/utString.h"

/// Replaces variables such as [[PROGRAM-NAME]] in a text by their values.
class sglVariableSubstituter {
public:
    /// The product's names, from the application object, as they are when the first text needs them.
    sglVariableSubstituter();
    /// Variables of the caller's; `table` is not owned and must outlive this object.
    explicit sglVariableSubstituter(utStringutStringcoTable const * table) : m_table(table) {}

    /// The first place of each variable is looked for in `text` itself and not in the text after the
    /// substitutions before it: a text holds one variable name, any number of times.
    utString substitute(utString const & text) const;

private:
    utStringutStringcoTable const * m_table;
};
