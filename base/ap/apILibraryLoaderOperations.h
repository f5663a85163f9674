#pragma once

#include "ap/apPathName.h"
#include "ut/utString.h"

/// Loadable modules of the platform. Nothing here reports to the user.
class apILibraryLoaderOperations {
public:
    virtual ~apILibraryLoaderOperations() = default;
    /// A handle for the other operations, or null with the system's words in `error`. A path without a
    /// directory is looked for where the system keeps its libraries.
    virtual void * load(apPathName const & path, utString & error) const = 0;
    virtual void * symbol(void * handle, utString const & name) const = 0; ///< null when absent
    virtual void unload(void * handle) const = 0;                          ///< a null handle is allowed
};
