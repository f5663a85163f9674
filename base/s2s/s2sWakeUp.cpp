#include "s2s/s2sWakeUp.h"

#include <sys/eventfd.h>
#include <unistd.h>

s2sWakeUp::s2sWakeUp() : m_descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

s2sWakeUp::~s2sWakeUp()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

void s2sWakeUp::set()
{
    if (m_descriptor >= 0)
        eventfd_write(m_descriptor, 1);
}

void s2sWakeUp::clear()
{
    eventfd_t value = 0;
    if (m_descriptor >= 0)
        eventfd_read(m_descriptor, &value);
}
