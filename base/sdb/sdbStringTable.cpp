#include "sdb/sdbStringTable.h"

#include <mutex>
#include <shared_mutex>
#include <unordered_map>

namespace {

struct Registry {
    std::shared_mutex mutex;
    std::unordered_map<utString, std::unordered_map<unsigned int, utString>> tables;
};

Registry & registry()
{
    static Registry the_registry;
    return the_registry;
}

} // namespace

sdbStringTable::sdbStringTable(char const * domain) : m_domain(domain ? domain : "") {}

void sdbStringTable::add_string(unsigned int id, char const * text)
{
    std::unique_lock const lock(registry().mutex);
    registry().tables[m_domain][id] = utString(text ? text : "");
}

utString sdbStringTable::find_string(char const * domain, unsigned int id)
{
    std::shared_lock const lock(registry().mutex);
    auto const table = registry().tables.find(utString(domain ? domain : ""));
    if (table == registry().tables.end())
        return {};
    auto const row = table->second.find(id);
    return row == table->second.end() ? utString() : row->second;
}
