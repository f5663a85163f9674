#include "sglResourceDetails.h"

#include "sglResourceString.h"

sglResourceDetails::sglResourceDetails()
    : m_name(utString::make_invalid()), m_short_description(utString::make_invalid()),
      m_long_description(utString::make_invalid())
{
}

sglResourceDetails::sglResourceDetails(utString const & name, utString const & short_description,
                                       utString const & long_description)
    : m_name(name), m_short_description(short_description), m_long_description(long_description)
{
}

void sglResourceDetails::become(sglResourceDetails const & other)
{
    m_name = other.m_name;
    m_short_description = other.m_short_description;
    m_long_description = other.m_long_description;
}

int sglResourceDetails::invalid() const
{
    return m_name.invalid() || m_short_description.invalid() || m_long_description.invalid();
}

utString sglResourceDetails::short_description() const
{
    return sglGUIString(m_short_description, "vmrgrlib").process();
}

utString sglResourceDetails::long_description() const
{
    return sglGUIString(m_long_description, "vmrgrlib").process();
}
