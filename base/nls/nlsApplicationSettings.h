#pragma once

#include "nls/nlsErrorData.h"
#include "nls/nlsLanguage.h"

/// Where an application keeps the display language that its user has chosen.
class nlsApplicationSettings {
public:
    virtual nlsErrorData set_display_language(nlsLanguage const & language) = 0;
    /// Without a stored choice `language` becomes the empty one; that is no error.
    virtual nlsErrorData get_display_language(nlsLanguage & language) = 0;
    virtual ~nlsApplicationSettings() = default;
};
