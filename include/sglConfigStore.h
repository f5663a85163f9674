#pragma once

#include <wx/fileconf.h>

/// The toolkit's configuration store on this platform: a file in the user's configuration directory, which is
/// made when the first value is kept. Only the wxConfigBase interface of it is used.
class sglConfigStore : public wxFileConfig {
public:
    using wxFileConfig::wxFileConfig;

    bool Flush(bool current_only = false) override;
};
