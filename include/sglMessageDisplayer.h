#pragma once

#include "ut/utString.h"
#include "ut/utTextArguments.h"

/// Shows numbered messages for code that must not know the toolkit.
class sglIMessageDisplayer {
public:
    enum Flags { ask_yes_no = 1, error = 2, warning = 4, serious_error = 8 };

    /// Returns 1 when the user answered Yes, else 0.
    virtual int vmessage(char const * domain, unsigned int id, int flags,
                         utTextArguments const & arguments) const = 0;
    virtual ~sglIMessageDisplayer() = default;

    template <class... Arguments>
    int message(char const * domain, unsigned int id, int flags, Arguments const &... arguments) const
    {
        return vmessage(domain, id, flags, ut_text_arguments(arguments...));
    }
};

/// Shows them in message boxes of the toolkit.
class sglWxMessageDisplayer : public sglIMessageDisplayer {
public:
    int vmessage(char const * domain, unsigned int id, int flags,
                 utTextArguments const & arguments) const override;

    /// The toolkit style that the flags amount to.
    static unsigned int style_of(int flags);
};
