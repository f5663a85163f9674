#include "sglThreadComm.h"

#include "sglApp.h"

sglThreadComm::sglThreadComm() : s2sThreadComm(magic_synch_operations()) {}

apISynchOperations const * sglThreadComm::magic_synch_operations()
{
    return sgl_synch_operations(*sglApp::app().application_information());
}
