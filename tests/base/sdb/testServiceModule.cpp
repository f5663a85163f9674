#include "sdu/sduServices.h"
#include "vmr/vmrabsAppInfo.h"

namespace {

int const answer = 42;

} // namespace

/// Adds the service "test.answer", unless the program says that its organisation does not want it.
extern "C" int vmr_register_services(sduServices * services, vmrabsAppInfo * info)
{
    if (info->organisation() == utString("no services"))
        return 0;
    services->add_service("test.answer", sduServicePtr<int const>(&answer));
    return 1;
}
