#pragma once

#include <memory>
#include <vector>

#include "ap/apPathName.h"
#include "ap/sdbIDynamicLibrary.h"
#include "sdb/sdbSearchPath.h"
#include "ut/utPtr.h"
#include "ut/utString.h"

class sduServices;
class vmrabsAppInfo;

/// What a service module offers to the program under the name "vmr_register_services" with C linkage: it adds
/// its services and returns non-zero, or 0 when it cannot work.
using sdbRegisterServices = int(sduServices * services, vmrabsAppInfo * info);

/// A service module that could not be used, with the reason in English, which names the file.
struct sdbServiceFailure {
    apPathName file;
    utString reason;
};

/// Loads the service modules, the shared objects in the directories of the services path, and keeps them
/// loaded as long as it lives.
class sdbServiceDllManager {
public:
    /// Loader and information are not owned and must outlive the manager. Nothing is loaded yet.
    sdbServiceDllManager(sdbSearchPath const & services_path, utObserverPtr<sdbIDynamicLibraryLoader> loader,
                         utObserverPtr<vmrabsAppInfo> info);

    /// Loads each module in the order of directories and names and has it add its services to `services`,
    /// which must not outlive the manager unless it is emptied first.
    void load_services(sduServices & services);

    int module_count() const { return static_cast<int>(m_modules.size()); } ///< modules that work
    std::vector<sdbServiceFailure> const & failures() const { return m_failures; }

private:
    void load_module(apPathName const & path, sduServices & services);

    sdbSearchPath m_path;
    utObserverPtr<sdbIDynamicLibraryLoader> m_loader;
    utObserverPtr<vmrabsAppInfo> m_info;
    std::vector<std::unique_ptr<sdbIDynamicLibrary>> m_modules;
    std::vector<sdbServiceFailure> m_failures;
};
