#include "host/hostCallFilter.h"

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <initializer_list>
#include <memory>
#include <sched.h>
#include <seccomp.h>
#include <unistd.h>

namespace {

class Filter {
public:
    Filter() : m_context(::seccomp_init(SCMP_ACT_ALLOW), ::seccomp_release)
    {
        if (m_context) {
            // Calls of another architecture have other numbers.
            ::seccomp_attr_set(m_context.get(), SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_KILL_PROCESS);
        }
    }

    // A call that a machine does not have needs no rule.
    void refuse(int call, int error = EPERM)
    {
        ::seccomp_rule_add(m_context.get(), SCMP_ACT_ERRNO(error), call, 0);
    }
    void refuse(int call, scmp_arg_cmp const & when)
    {
        ::seccomp_rule_add(m_context.get(), SCMP_ACT_ERRNO(EPERM), call, 1, when);
    }
    void kill(int call) { ::seccomp_rule_add(m_context.get(), SCMP_ACT_KILL_PROCESS, call, 0); }

    bool made() const { return m_context != nullptr; }
    bool load() { return ::seccomp_load(m_context.get()) == 0; }

private:
    std::unique_ptr<void, decltype(&::seccomp_release)> m_context;
};

constexpr int first_argument = 0;

scmp_arg_cmp masked(unsigned argument, std::uint64_t mask, std::uint64_t value)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

// What the rules for files do not cover: rights, owners, times and attributes; and, before version 3 of them,
// making a file shorter, also by opening it for reading.
void refuse_changes(Filter & filter)
{
    constexpr int chmod_at_2 = 452; // younger than the library
    for (int const call : {SCMP_SYS(chmod),
                           SCMP_SYS(fchmodat),
                           chmod_at_2,
                           SCMP_SYS(chown),
                           SCMP_SYS(fchown),
                           SCMP_SYS(lchown),
                           SCMP_SYS(fchownat),
                           SCMP_SYS(setxattr),
                           SCMP_SYS(lsetxattr),
                           SCMP_SYS(fsetxattr),
                           SCMP_SYS(removexattr),
                           SCMP_SYS(lremovexattr),
                           SCMP_SYS(fremovexattr),
                           SCMP_SYS(utime),
                           SCMP_SYS(utimes),
                           SCMP_SYS(futimesat),
                           SCMP_SYS(utimensat),
                           SCMP_SYS(truncate),
                           SCMP_SYS(mknod),
                           SCMP_SYS(mknodat),
                           SCMP_SYS(symlink),
                           SCMP_SYS(symlinkat),
                           SCMP_SYS(open_by_handle_at),
                           SCMP_SYS(fanotify_init)}) {
        filter.refuse(call);
    }
    filter.refuse(SCMP_SYS(open), masked(1, O_ACCMODE | O_TRUNC, O_RDONLY | O_TRUNC));
    filter.refuse(SCMP_SYS(openat), masked(2, O_ACCMODE | O_TRUNC, O_RDONLY | O_TRUNC));
    // Its flags cannot be seen from here.
    filter.refuse(SCMP_SYS(openat2), ENOSYS);
}

void refuse_others(Filter & filter)
{
    for (int const call : {SCMP_SYS(execve),
                           SCMP_SYS(execveat),
                           SCMP_SYS(socket),
                           SCMP_SYS(socketpair),
                           SCMP_SYS(connect),
                           SCMP_SYS(bind),
                           SCMP_SYS(listen),
                           SCMP_SYS(accept),
                           SCMP_SYS(accept4),
                           SCMP_SYS(sendmsg),
                           SCMP_SYS(sendmmsg),
                           SCMP_SYS(ptrace),
                           SCMP_SYS(process_vm_readv),
                           SCMP_SYS(process_vm_writev),
                           SCMP_SYS(process_madvise),
                           SCMP_SYS(pidfd_open),
                           SCMP_SYS(pidfd_getfd),
                           SCMP_SYS(pidfd_send_signal),
                           SCMP_SYS(kcmp),
                           SCMP_SYS(tkill),
                           SCMP_SYS(rt_sigqueueinfo),
                           SCMP_SYS(rt_tgsigqueueinfo),
                           SCMP_SYS(migrate_pages),
                           SCMP_SYS(move_pages),
                           SCMP_SYS(setsid),
                           SCMP_SYS(setpgid),
                           SCMP_SYS(setpriority),
                           SCMP_SYS(ioprio_set),
                           SCMP_SYS(shmget),
                           SCMP_SYS(shmat),
                           SCMP_SYS(semget),
                           SCMP_SYS(msgget),
                           SCMP_SYS(mq_open)}) {
        filter.refuse(call);
    }
    // The limits of others.
    filter.refuse(SCMP_SYS(prlimit64), {first_argument, SCMP_CMP_NE, 0, 0});
    // What it makes cannot be seen from here; the C library then uses the older call.
    filter.refuse(SCMP_SYS(clone3), ENOSYS);
    for (std::uint64_t const space : {CLONE_NEWNS, CLONE_NEWCGROUP, CLONE_NEWUTS, CLONE_NEWIPC, CLONE_NEWUSER,
                                      CLONE_NEWPID, CLONE_NEWNET}) {
        filter.refuse(SCMP_SYS(clone), masked(first_argument, space, space));
    }
}

void refuse_kernel(Filter & filter)
{
    for (int const call : {SCMP_SYS(mount),
                           SCMP_SYS(umount2),
                           SCMP_SYS(move_mount),
                           SCMP_SYS(open_tree),
                           SCMP_SYS(fsopen),
                           SCMP_SYS(fsconfig),
                           SCMP_SYS(fsmount),
                           SCMP_SYS(fspick),
                           SCMP_SYS(mount_setattr),
                           SCMP_SYS(chroot),
                           SCMP_SYS(unshare),
                           SCMP_SYS(setns),
                           SCMP_SYS(perf_event_open),
                           SCMP_SYS(userfaultfd),
                           SCMP_SYS(io_uring_setup),
                           SCMP_SYS(io_uring_enter),
                           SCMP_SYS(io_uring_register),
                           SCMP_SYS(keyctl),
                           SCMP_SYS(add_key),
                           SCMP_SYS(request_key),
                           SCMP_SYS(quotactl),
                           SCMP_SYS(acct),
                           SCMP_SYS(syslog),
                           SCMP_SYS(personality),
                           SCMP_SYS(modify_ldt),
                           SCMP_SYS(sethostname),
                           SCMP_SYS(setdomainname),
                           SCMP_SYS(settimeofday),
                           SCMP_SYS(clock_settime),
                           SCMP_SYS(adjtimex),
                           SCMP_SYS(clock_adjtime),
                           SCMP_SYS(vhangup),
                           SCMP_SYS(lookup_dcookie)}) {
        filter.refuse(call);
    }
    // Nobody calls these by mistake.
    for (int const call :
         {SCMP_SYS(bpf), SCMP_SYS(pivot_root), SCMP_SYS(swapon), SCMP_SYS(swapoff), SCMP_SYS(reboot),
          SCMP_SYS(kexec_load), SCMP_SYS(kexec_file_load), SCMP_SYS(init_module), SCMP_SYS(finit_module),
          SCMP_SYS(delete_module), SCMP_SYS(iopl), SCMP_SYS(ioperm)}) {
        filter.kill(call);
    }
}

} // namespace

bool host_refuse_calls()
{
    Filter filter;
    if (!filter.made()) {
        return false;
    }
    refuse_changes(filter);
    refuse_others(filter);
    refuse_kernel(filter);
    return filter.load();
}

bool host_refuse_processes()
{
    Filter filter;
    if (!filter.made()) {
        return false;
    }
    filter.refuse(SCMP_SYS(fork));
    filter.refuse(SCMP_SYS(vfork));
    filter.refuse(SCMP_SYS(clone), masked(first_argument, CLONE_THREAD, 0));
    auto const self = static_cast<scmp_datum_t>(::getpid());
    filter.refuse(SCMP_SYS(kill), {first_argument, SCMP_CMP_NE, self, 0});
    filter.refuse(SCMP_SYS(tgkill), {first_argument, SCMP_CMP_NE, self, 0});
    return filter.load();
}
