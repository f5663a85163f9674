#include "sdr/sdrInterface.h"

#include "ap/apPosixOperations.h"

sdrInterface::sdrInterface() : sdrInterface(apPathName(L"libvmrdrawing.so.1")) {}

sdrInterface::sdrInterface(apPathName const & library)
{
    utString ignored; // an installation without the library is a good one
    m_handle = apPosixLibraryLoaderOperations().load(library, ignored);
}

sdrInterface::~sdrInterface()
{
    apPosixLibraryLoaderOperations().unload(m_handle);
}
