#include "sdb/sdbFormatDeclaration.h"

std::string sdbFormatDeclaration::filter_text() const
{
    if (filter.empty())
        return {};
    std::string patterns;
    for (auto const & extension : extensions)
        patterns += (patterns.empty() ? "*." : ";*.") + extension;
    if (patterns.empty())
        patterns = "*.*";
    return filter + " (" + patterns + ")|" + patterns;
}
