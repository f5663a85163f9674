#pragma once

#include "ap/apPathName.h"
#include "ut/utString.h"

/// What the system tells a process about itself.
class apIProcessEnvironmentOperations {
public:
    virtual ~apIProcessEnvironmentOperations() = default;
    virtual utString environment(utString const & name) const = 0; ///< invalid when the variable is not set
    virtual apPathName executable_path() const = 0;                ///< with links resolved; empty on failure
    virtual apPathName current_directory() const = 0;              ///< empty on failure
};
