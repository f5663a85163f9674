#pragma once

#include "ap/apISynchOperations.h"
#include "s2s/s2sThreadComm.h"

/// The channel of a translation on the application's own synchronisation operations. Cannot be made before
/// the application has initialised its services.
class sglThreadComm : public s2sThreadComm {
public:
    sglThreadComm();

    static apISynchOperations const * magic_synch_operations();
};
