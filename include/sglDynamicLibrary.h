#pragma once

#include "ap/sdbIDynamicLibrary.h"

#include <wx/dynlib.h>

/// A loadable module opened through the toolkit. A failure is told by loaded_successfully() alone, without a
/// message.
class sglDynamicLibrary : public sdbIDynamicLibrary {
public:
    explicit sglDynamicLibrary(apPathName const & path);
    explicit sglDynamicLibrary(utString const & path);

    void * proc_address(utString const & name) override; ///< null when the module has no such symbol
    bool loaded_successfully() override;

private:
    wxDynamicLibrary m_library;
};

/// Opens modules through the toolkit, for the application program.
class sglDynamicLibraryLoader : public sdbIDynamicLibraryLoader {
public:
    std::unique_ptr<sdbIDynamicLibrary> load(apPathName const & path) override;
    std::unique_ptr<sdbIDynamicLibrary> load_ut(utString const & path) override;
};
