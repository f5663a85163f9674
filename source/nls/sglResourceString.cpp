#include "sglResourceString.h"

#include "sglNlsHelp.h"
#include "sglStringTableRows.h"
#include "sglVariableSubstituter.h"

#include "sdb/sdbStringTable.h"

utString sglGUIString::process(utTextArguments const & arguments) const
{
    return substitute(translate(m_key, arguments));
}

utString sglGUIString::translate(utString const & key, utTextArguments const & arguments) const
{
    return getNlsHelp()->vgsprintf(m_domain, key.c_str(), arguments);
}

utString sglGUIString::substitute(utString const & text) const
{
    return sglVariableSubstituter().substitute(text);
}

utString sglStringTableString::process(unsigned int id, utTextArguments const & arguments) const
{
    return sglGUIString(get_string(id), m_domain).process(arguments);
}

utString sglStringTableString::get_string(unsigned int id) const
{
    return sdbStringTable::find_string(m_domain, id);
}

void sgl_build_string_table()
{
    // The registry keeps pointing at the table, which therefore lives as long as the process.
    static auto * const table = new sdbStringTable("vmrgrlib");
    for (auto const & row : sgl_string_table_rows())
        table->add_string(row.id, row.text);
}
