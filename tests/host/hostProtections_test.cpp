#include "HostRun.h"

#include "kit/kitTempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using nlohmann::json;

namespace {

// Makes this process, and those that it starts, believe that the kernel is an old one.
void forget_landlock()
{
    auto const filter = ::seccomp_init(SCMP_ACT_ALLOW);
    ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SYS_landlock_create_ruleset, 0);
    ::seccomp_load(filter);
}

void forget_seccomp()
{
    auto const filter = ::seccomp_init(SCMP_ACT_ALLOW);
    ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SYS_seccomp, 0);
    ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(EINVAL), SYS_prctl, 1,
                       scmp_arg_cmp{0, SCMP_CMP_EQ, PR_SET_SECCOMP, 0});
    ::seccomp_load(filter);
}

// Runs the host, behind `forget`, with a job that translates to `output`, or with the words. What it prints.
std::string run_host(kitTempFolder const & folder, void (*forget)(), std::vector<std::string> const & words,
                     std::string const & output = "out.odd")
{
    HostJob job;
    job.input(folder.write("in/a.odd", "x"), ODD_MODULE, "Box").output(folder / output, ODD_MODULE, "Box");
    auto const input = folder.write("job.json", job.line());
    auto const printed = folder / "printed";
    auto const child = ::fork();
    if (child == 0) {
        forget();
        ::dup2(::open(input.c_str(), O_RDONLY), STDIN_FILENO);
        ::dup2(::open(printed.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDOUT_FILENO);
        std::vector<char *> arguments{const_cast<char *>(HOST_PROGRAM)};
        for (auto const & word : words) {
            arguments.push_back(const_cast<char *>(word.c_str()));
        }
        arguments.push_back(nullptr);
        ::execv(HOST_PROGRAM, arguments.data());
        ::_exit(127);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    return kit_read_file(printed);
}

bool says(std::string const & text, std::string const & line)
{
    return ('\n' + text).find('\n' + line + '\n') != std::string::npos;
}

constexpr char const * without_seccomp = "system calls (seccomp): not supported by this kernel";
constexpr char const * without_landlock = "files (landlock): not supported by this kernel";

} // namespace

TEST(HostProtections, AreToldWithTheVersion)
{
    kitTempFolder const folder;
    auto const said = run_host(folder, [] {}, {"--version"});
    EXPECT_TRUE(said.starts_with("vmr-host ")) << said;
    EXPECT_TRUE(says(said, "no new rights (no_new_privs): on")) << said;
    bool const filters = ::prctl(PR_GET_SECCOMP, 0, 0, 0, 0) >= 0;
    EXPECT_TRUE(says(said, filters ? "system calls (seccomp): on" : without_seccomp)) << said;
    auto const version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, 1);
    auto const files = "files (landlock " + std::to_string(version) + "): on";
    EXPECT_TRUE(says(said, version > 0 ? files : without_landlock)) << said;
    EXPECT_TRUE(says(said, std::string("network (landlock): ") +
                               (version >= 4 ? "on" : "not supported by this kernel")))
        << said;
}

TEST(HostProtections, HoldOneWithoutTheOther)
{
    kitTempFolder const folder;
    auto const old = run_host(folder, forget_landlock, {"--version"});
    EXPECT_TRUE(says(old, without_landlock)) << old;
    EXPECT_TRUE(says(old, "no new rights (no_new_privs): on")) << old;
    auto const other = run_host(folder, forget_seccomp, {"--version"});
    EXPECT_TRUE(says(other, without_seccomp)) << other;
    EXPECT_TRUE(says(other, "no new rights (no_new_privs): on")) << other;
}

TEST(HostProtections, AreNotNeededForATranslation)
{
    kitTempFolder const folder;
    for (auto const & [forget, output] :
         {std::pair{&forget_landlock, "landlock.odd"}, std::pair{&forget_seccomp, "seccomp.odd"}}) {
        auto const events = run_host(folder, forget, {}, output);
        EXPECT_NE(events.find("\"status\":\"completed\""), std::string::npos) << events;
        EXPECT_EQ(folder.read(output), "Point");
    }
}
