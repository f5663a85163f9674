#include "vmr/coResourceIterator.h"

int coResourceIterator::operator++()
{
    if (!m_table)
        return 0;
    auto const & resources = m_table->m_resources;
    if (!m_started)
        m_next = resources.begin();
    else if (m_current)
        ++m_next;
    m_started = true;
    m_current = m_next == resources.end() ? nullptr : &m_next->second;
    return m_current != nullptr;
}
