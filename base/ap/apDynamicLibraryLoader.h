#pragma once

#include "ap/apILibraryLoaderOperations.h"
#include "ap/sdbIDynamicLibrary.h"
#include "ut/utPtr.h"

/// Loads modules through the library loader operations, which must outlive the loader and what it loaded.
class apDynamicLibraryLoader : public sdbIDynamicLibraryLoader {
public:
    explicit apDynamicLibraryLoader(utObserverPtr<apILibraryLoaderOperations const> operations)
        : m_operations(operations)
    {
    }

    std::unique_ptr<sdbIDynamicLibrary> load(apPathName const & path) override;
    std::unique_ptr<sdbIDynamicLibrary> load_ut(utString const & path) override;

private:
    utObserverPtr<apILibraryLoaderOperations const> m_operations;
};
