#pragma once

#include <wx/config.h>

/// The toolkit's configuration store on this platform. Only the wxConfigBase interface of it is used.
using sglConfigStore = wxConfig;
