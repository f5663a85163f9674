#pragma once

#include "ap/apPosixOperations.h"
#include "ut/utPtr.h"

/// The operations of this platform, gathered for the application object. The pointers look into this object,
/// which has to outlive their users. The operations may be called from any thread.
class wxtFrustrum {
public:
    wxtFrustrum() = default;
    wxtFrustrum(wxtFrustrum const &) = delete;
    wxtFrustrum & operator=(wxtFrustrum const &) = delete;

    utObserverPtr<apIProcessThreadOperations const> process_thread_operations() const
    {
        return &m_process_thread;
    }
    utObserverPtr<apISynchOperations const> synch_operations() const { return &m_synch; }
    utObserverPtr<apIFileOperations const> file_operations() const { return &m_file; }
    utObserverPtr<apILibraryLoaderOperations const> library_loader_operations() const
    {
        return &m_library_loader;
    }
    utObserverPtr<apIProcessEnvironmentOperations const> process_environment_operations() const
    {
        return &m_process_environment;
    }

private:
    apPosixProcessThreadOperations m_process_thread;
    apPosixSynchOperations m_synch;
    apPosixFileOperations m_file;
    apPosixLibraryLoaderOperations m_library_loader;
    apPosixProcessEnvironmentOperations m_process_environment;
};
