#include "host/hostModule.h"

#include <dlfcn.h>
#include <filesystem>
#include <stdexcept>
#include <utility>

namespace {

sdkText other_version(std::string const & path, int version)
{
    return sdkText("host::The translator %s has interface version %d, and this program needs %d; install the "
                   "translator that belongs to this program",
                   path, version, sdk_interface);
}

} // namespace

std::unique_ptr<hostModule> hostModule::load(std::string const & path, std::string const & format,
                                             bool for_reading, sdkText & failure)
{
    std::unique_ptr<hostModule> module(new hostModule);
    auto const manifest = std::filesystem::path(path).replace_extension(".json").string();
    if (auto const problem = module->m_manifest.load(manifest); !problem.empty()) {
        failure = sdkText("host::The translator %s cannot be used: %s", path, problem);
        return nullptr;
    }
    if (module->m_manifest.interface_version() != sdk_interface) {
        failure = other_version(path, module->m_manifest.interface_version());
        return nullptr;
    }
    auto const * declared = module->m_manifest.format(format);
    if (!declared || !(for_reading ? declared->reads : declared->writes)) {
        failure = for_reading ? sdkText("host::The translator %s cannot read the format %s", path, format)
                              : sdkText("host::The translator %s cannot write the format %s", path, format);
        return nullptr;
    }
    void * const library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    auto const version = library ? ::dlsym(library, "sdk_interface_version") : nullptr;
    auto const entry = library ? ::dlsym(library, "sdk_module") : nullptr;
    if (!version || !entry) {
        char const * const reason = ::dlerror();
        failure = sdkText("host::The translator %s cannot be loaded: %s", path, reason ? reason : "");
        return nullptr;
    }
    if (int const found = reinterpret_cast<decltype(&sdk_interface_version)>(version)();
        found != sdk_interface) {
        failure = other_version(path, found);
        return nullptr;
    }
    module->m_path = path;
    module->m_format = format;
    module->m_module = reinterpret_cast<decltype(&sdk_module)>(entry)();
    return module;
}

std::unique_ptr<sdkReader> hostModule::make_reader(sdkContext & context) const
{
    auto reader = m_module->make_reader(m_format, context);
    return reader ? std::move(reader)
                  : throw std::logic_error(m_path + " does not make the reader it declares");
}

std::unique_ptr<sdkWriter> hostModule::make_writer(sdkContext & context) const
{
    auto writer = m_module->make_writer(m_format, context);
    return writer ? std::move(writer)
                  : throw std::logic_error(m_path + " does not make the writer it declares");
}
