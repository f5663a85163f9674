#pragma once

#include "host/hostFolders.h"

#include <string>
#include <sys/types.h>

// True when the other end of standard input is closed. A file has no other end.
bool host_engine_is_gone();

// A process that removes folders once the engine is gone and the host has ended. It stays outside the
// sandbox, which lets nobody inside remove the folder of a translation, and never sees what is in a file.
class hostKeeper {
public:
    // Begins the process. To be made before there are other threads, and before the sandbox.
    explicit hostKeeper(hostFolders folders);
    hostKeeper(hostKeeper const &) = delete;
    hostKeeper & operator=(hostKeeper const &) = delete;

    // One more folder. For one thread at a time.
    void keep(std::string const & folder) const;

    // Lets the process do its work, if there is any, and waits for its end; where it cannot be told, it goes
    // to work when this process has ended. Nothing is kept after this.
    void finish();

private:
    bool tell(std::string const & folder) const;

    int m_pipe = -1;
    ::pid_t m_process = -1;
};
