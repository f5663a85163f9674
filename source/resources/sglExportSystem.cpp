#include "sglExportSystem.h"

#include "sglResourceHandler.h"

void sglExportSystem::add_override(utString const & resource, utString const & value)
{
    if (sglResourceHandler(resource).validate(value))
        m_overrides[resource] = value;
}

int sglExportSystemIT::operator++()
{
    if (m_started && m_position != m_table.end())
        ++m_position;
    m_started = true;
    return !undefined();
}

utString sglExportSystemIT::resource() const
{
    return undefined() ? utString() : m_position->first;
}

utString const & sglExportSystemIT::value() const
{
    static utString const none;
    return undefined() ? none : m_position->second;
}

void sglExportSystemIT::reset()
{
    m_position = m_table.begin();
    m_started = false;
}
