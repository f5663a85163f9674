#pragma once

#include <memory>

#include "sdb/sdbServiceDllManager.h"
#include "sdu/sduServices.h"
#include "ut/utPtr.h"

class vmrabsAppInfo;

/// The registry of services together with the modules that provide some of them.
class sdbServices : public sduServices {
public:
    ~sdbServices() override;

    /// Takes the manager over, which leaves `manager` empty, and has it load its modules. An earlier manager
    /// goes on living, since its services may be in use.
    void set_dll_manager(std::unique_ptr<sdbServiceDllManager> & manager,
                         utObserverPtr<vmrabsAppInfo const> info);

    /// Null before set_dll_manager.
    sdbServiceDllManager const * dll_manager() const
    {
        return m_managers.empty() ? nullptr : m_managers.back().get();
    }

private:
    std::vector<std::unique_ptr<sdbServiceDllManager>> m_managers;
};
