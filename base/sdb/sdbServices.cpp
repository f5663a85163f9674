#include "sdb/sdbServices.h"

sdbServices::~sdbServices()
{
    // The holders of a module's services may be made of its code, which goes with the managers.
    remove_all_services();
}

void sdbServices::set_dll_manager(std::unique_ptr<sdbServiceDllManager> & manager,
                                  utObserverPtr<vmrabsAppInfo const>)
{
    if (!manager)
        return;
    m_managers.push_back(std::move(manager));
    m_managers.back()->load_services(*this);
}
