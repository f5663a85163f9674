#pragma once

#include "ut/utString.h"

/// The texts of one resource in the options dialog. The descriptions are kept as message keys.
class sglResourceDetails {
public:
    sglResourceDetails(); ///< invalid()
    sglResourceDetails(sglResourceDetails const & other) { become(other); }
    sglResourceDetails(utString const & name, utString const & short_description,
                       utString const & long_description);
    sglResourceDetails & operator=(sglResourceDetails const & other)
    {
        become(other);
        return *this;
    }

    int invalid() const;                             ///< non-zero when any of the three was never set
    utString const & name() const { return m_name; } ///< the name in resource tables; empty for a group
    utString short_description() const;              ///< the label, in the user's language
    utString long_description() const;               ///< the tooltip, in the user's language

protected:
    void become(sglResourceDetails const & other);

private:
    utString m_name;
    utString m_short_description;
    utString m_long_description;
};
