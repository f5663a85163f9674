#include "sdb/sdbServiceDllManager.h"

#include "ap/apPosixOperations.h"
#include "ap/apStringCompareInsensitive.h"
#include "ap/apStringEncodingChooser.h"
#include "sdu/sduServices.h"

sdbServiceDllManager::sdbServiceDllManager(sdbSearchPath const & services_path,
                                           utObserverPtr<sdbIDynamicLibraryLoader> loader,
                                           utObserverPtr<vmrabsAppInfo> info)
    : m_path(services_path), m_loader(loader), m_info(info)
{
}

void sdbServiceDllManager::load_services(sduServices & services)
{
    apPosixFileOperations const files;
    apStringCompareInsensitive const compare(apStringEncodingChooser::ut_encoding());
    for (auto const & directory : m_path.directories()) {
        std::vector<apPathName> modules;
        if (files.is_directory(directory) && !files.list_by_extension(directory, L"so", compare, modules))
            m_failures.push_back({directory, utString(directory.utf8() + " cannot be read")});
        for (auto const & module : modules)
            load_module(module, services);
    }
}

void sdbServiceDllManager::load_module(apPathName const & path, sduServices & services)
{
    auto const fail = [&](char const * reason) {
        m_failures.push_back({path, utString(path.utf8() + ": " + reason)});
    };
    auto library = m_loader->load(path);
    if (!library->loaded_successfully())
        return fail("the service module cannot be loaded");
    auto * const entry =
        reinterpret_cast<sdbRegisterServices *>(library->proc_address("vmr_register_services"));
    if (!entry)
        return fail("the service module has no vmr_register_services");
    bool const registered = entry(&services, m_info.get()) != 0;
    // Kept in any case: it may have added some of its services before it failed.
    m_modules.push_back(std::move(library));
    if (!registered)
        fail("the service module could not add its services");
}
