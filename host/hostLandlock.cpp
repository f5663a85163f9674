#include "host/hostLandlock.h"

#include <cstdint>
#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// Younger than the headers that this is built with.
constexpr std::uint64_t truncate_file = 1U << 14;
constexpr std::uint64_t control_device = 1U << 15;
constexpr std::uint64_t bind_tcp = 1U << 0;
constexpr std::uint64_t connect_tcp = 1U << 1;
constexpr std::uint64_t abstract_sockets = 1U << 0;
constexpr std::uint64_t signals = 1U << 1;

// As a kernel of version 6 has it; older ones take it when what they do not know is zero.
struct Ruleset {
    std::uint64_t files = 0;
    std::uint64_t network = 0;
    std::uint64_t scope = 0;
};

constexpr std::uint64_t reading = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr std::uint64_t writing = reading | LANDLOCK_ACCESS_FS_WRITE_FILE | truncate_file |
                                  LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_MAKE_DIR |
                                  LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR |
                                  LANDLOCK_ACCESS_FS_REFER;
constexpr std::uint64_t rights_of_files =
    LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_WRITE_FILE | truncate_file;

Ruleset ruleset_for(int version)
{
    Ruleset rules;
    rules.files = LANDLOCK_ACCESS_FS_REFER - 1;
    if (version >= 2) {
        rules.files |= LANDLOCK_ACCESS_FS_REFER;
    }
    if (version >= 3) {
        rules.files |= truncate_file;
    }
    if (version >= host_landlock_network) {
        rules.network = bind_tcp | connect_tcp;
    }
    if (version >= 5) {
        rules.files |= control_device;
    }
    if (version >= host_landlock_signals) {
        rules.scope = abstract_sockets | signals;
    }
    return rules;
}

void allow(int rules, std::string const & place, std::uint64_t rights)
{
    int const opened = ::open(place.c_str(), O_PATH | O_CLOEXEC);
    struct stat status {};
    if (opened < 0 || ::fstat(opened, &status) != 0) {
        return;
    }
    if (!S_ISDIR(status.st_mode)) {
        rights &= rights_of_files;
    }
    landlock_path_beneath_attr const rule{.allowed_access = rights, .parent_fd = opened};
    ::syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
    ::close(opened);
}

} // namespace

int host_leave_only(hostPlaces const & places)
{
    auto const version =
        static_cast<int>(::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION));
    if (version <= 0) {
        return 0;
    }
    auto const wanted = ruleset_for(version);
    auto const rules = static_cast<int>(::syscall(SYS_landlock_create_ruleset, &wanted, sizeof wanted, 0));
    if (rules < 0) {
        return -1;
    }
    // Stays open: the system forgets a folder of /proc that nobody holds, and the rule with it.
    [[maybe_unused]] int const self = ::open("/proc/self", O_PATH | O_CLOEXEC);
    for (auto const & place : places.read) {
        allow(rules, place, reading & wanted.files);
    }
    for (auto const & place : places.write) {
        allow(rules, place, writing & wanted.files);
    }
    auto const refused = ::syscall(SYS_landlock_restrict_self, rules, 0);
    ::close(rules);
    return refused == 0 ? version : -1;
}
