#pragma once

#include "ap/apPathName.h"

/// Keeps the library for drawing files in the process for as long as it lives, so that modules that use it do
/// not load and unload it over and over. The library is optional; without it the object holds nothing.
class sdrInterface {
public:
    sdrInterface(); ///< the library that an installation may bring
    explicit sdrInterface(
        apPathName const & library); ///< another one; without a directory the system looks for it
    ~sdrInterface();
    sdrInterface(sdrInterface const &) = delete;
    sdrInterface & operator=(sdrInterface const &) = delete;

    bool available() const { return m_handle != nullptr; }

private:
    void * m_handle;
};
