#include "host/hostSandbox.h"

#include "host/hostCallFilter.h"
#include "host/hostLandlock.h"

#include <sys/prctl.h>

namespace {

std::string line(std::string const & what, bool on)
{
    return what + (on ? "on\n" : "not supported by this kernel\n");
}

} // namespace

hostProtections host_enter_sandbox(hostPlaces const & places)
{
    hostProtections protections;
    protections.no_new_rights = ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
    protections.files = host_leave_only(places);
    protections.calls = host_refuse_calls();
    return protections;
}

std::string host_describe(hostProtections const & protections)
{
    auto const version = protections.files;
    auto const files =
        version < 0 ? "files (landlock): refused by this system\n"
                    : line("files (landlock" + (version > 0 ? " " + std::to_string(version) : "") + "): ",
                           version > 0);
    return line("no new rights (no_new_privs): ", protections.no_new_rights) + files +
           line("network (landlock): ", version >= host_landlock_network) +
           line("signals (landlock): ", version >= host_landlock_signals) +
           line("system calls (seccomp): ", protections.calls);
}
