#pragma once

#include <memory>

#include "ap/apPathName.h"
#include "ut/utString.h"

/// A loaded module, or the trace of one that could not be loaded.
class sdbIDynamicLibrary {
public:
    virtual void * proc_address(utString const & name) = 0; ///< null when the symbol is absent
    virtual bool loaded_successfully() = 0;
    virtual ~sdbIDynamicLibrary() = default; ///< unloads the module
};

/// Loads modules. The object that comes back is never null, also when the module could not be loaded.
class sdbIDynamicLibraryLoader {
public:
    virtual std::unique_ptr<sdbIDynamicLibrary> load(apPathName const & path) = 0;
    virtual std::unique_ptr<sdbIDynamicLibrary> load_ut(utString const & path) = 0;
    virtual ~sdbIDynamicLibraryLoader() = default;
};
