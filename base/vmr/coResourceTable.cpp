#include "vmr/coResourceTable.h"

#include <atomic>

namespace {

std::uint64_t next_revision()
{
    static std::atomic<std::uint64_t> revision = 0;
    return ++revision;
}

} // namespace

coResourceTable::coResourceTable(coResourceTable const & other)
{
    *this = other;
}

coResourceTable & coResourceTable::operator=(coResourceTable const & other)
{
    if (this == &other)
        return *this;
    m_resources.clear();
    for (auto const & [name, resource] : other.m_resources)
        set_value(name, resource.value_text());
    m_revision = other.m_revision;
    return *this;
}

coResourceBase * coResourceTable::lookup_resource(coResourceKeyBase const * resource_key)
{
    auto const found = resource_key ? m_resources.find(resource_key->name) : m_resources.end();
    return found == m_resources.end() ? nullptr : &found->second;
}

coResourceBase const * coResourceTable::lookup_resource(coResourceKeyBase const * resource_key) const
{
    return const_cast<coResourceTable *>(this)->lookup_resource(resource_key);
}

void coResourceTable::set_value(utString const & name, utString const & value)
{
    m_resources.try_emplace(name, name).first->second.set(value);
    m_revision = next_revision();
}

utString coResourceTable::value(utString const & name) const
{
    auto const found = m_resources.find(name);
    return found == m_resources.end() ? utString::make_invalid() : found->second.value_text();
}

void coResourceTable::remove(utString const & name)
{
    if (m_resources.erase(name) > 0)
        m_revision = next_revision();
}
