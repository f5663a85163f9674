#include "s2s/s2sHostProgram.h"

#include <filesystem>

#include "ap/apPosixOperations.h"
#include "vmr/vmrabsAppInfo.h"

utString s2s_host_program(vmrabsAppInfo const & app_info)
{
    auto const given = app_info.info(s2sHOSTPROGRAM);
    if (!given.empty())
        return given;
    std::filesystem::path const program = apPosixProcessEnvironmentOperations().executable_path().utf8();
    return (program.parent_path().parent_path() / "libexec/vmr/vmr-host").native();
}
