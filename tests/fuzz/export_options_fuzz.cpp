// Whatever an export options file holds, it is read without harm, each system is found by its name, and each
// override is a legal value of its resource.

#include "sglExportOptionsFile.h"
#include "sglResourceHandler.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    int const descriptor = memfd_create("export options", 0);
    require(write(descriptor, data, size) == static_cast<ssize_t>(size));

    sglExportOptionsFile file;
    file.set_options_file(utString("/proc/self/fd/" + std::to_string(descriptor)));
    int const result = file.read_options_file();
    close(descriptor);

    require(!result || file.num_systems() > 0);
    for (int index = 0; index < file.num_systems(); ++index) {
        auto const * const system = file.system(index);
        require(file.find_named_system(system->get_system_name()) != nullptr);
        for (sglExportSystemIT walk(*system); ++walk;)
            require(sglResourceHandler(walk.resource()).validate(walk.value()));
    }
    return 0;
}
