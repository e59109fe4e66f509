// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/Guard.h"

#include <QStringList>

#include <fcntl.h>
#include <linux/landlock.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <vector>

namespace quorvin {

namespace {

constexpr rlim_t kOpenFiles = 256;

bool setLimit(__rlimit_resource resource, rlim_t value)
{
    const rlimit limit{value, value};
    return ::setrlimit(resource, &limit) == 0;
}

bool raiseLimits(quint64 addressSpace)
{
    const bool memory = addressSpace == 0 || setLimit(RLIMIT_AS, addressSpace);
    return setLimit(RLIMIT_FSIZE, 0) && setLimit(RLIMIT_CORE, 0) && setLimit(RLIMIT_NOFILE, kOpenFiles)
        && memory;
}

/// Every right that this Landlock knows to withhold.
quint64 landlockRights(long version)
{
    quint64 rights = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;
    constexpr quint64 kRefer = 1 << 13;
    constexpr quint64 kTruncate = 1 << 14;
    if (version >= 2)
        rights |= kRefer;
    if (version >= 3)
        rights |= kTruncate;
    return rights;
}

bool raiseLandlock()
{
    const long version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return false;
    const landlock_ruleset_attr attributes{.handled_access_fs = landlockRights(version)};
    const int rules
        = static_cast<int>(::syscall(SYS_landlock_create_ruleset, &attributes, sizeof attributes, 0));
    const int root = ::open("/", O_PATH | O_CLOEXEC);
    const landlock_path_beneath_attr reading{
        .allowed_access = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR, .parent_fd = root};
    const bool raised = ::syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &reading, 0) == 0
        && ::syscall(SYS_landlock_restrict_self, rules, 0) == 0;
    ::close(root);
    ::close(rules);
    return raised;
}

/// What a process needs that reads files, takes memory, starts threads of its own and ends.
constexpr std::array kAllowed{
    SCMP_SYS(read),
    SCMP_SYS(readv),
    SCMP_SYS(pread64),
    SCMP_SYS(preadv),
    SCMP_SYS(preadv2),
    SCMP_SYS(write),
    SCMP_SYS(writev),
    SCMP_SYS(close),
    SCMP_SYS(close_range),
    SCMP_SYS(lseek),
    SCMP_SYS(stat),
    SCMP_SYS(fstat),
    SCMP_SYS(lstat),
    SCMP_SYS(newfstatat),
    SCMP_SYS(statx),
    SCMP_SYS(statfs),
    SCMP_SYS(fstatfs),
    SCMP_SYS(access),
    SCMP_SYS(faccessat),
    SCMP_SYS(faccessat2),
    SCMP_SYS(getdents),
    SCMP_SYS(getdents64),
    SCMP_SYS(readlink),
    SCMP_SYS(readlinkat),
    SCMP_SYS(getcwd),
    SCMP_SYS(fadvise64),
    SCMP_SYS(readahead),
    SCMP_SYS(getxattr),
    SCMP_SYS(lgetxattr),
    SCMP_SYS(fgetxattr),
    SCMP_SYS(listxattr),
    SCMP_SYS(llistxattr),
    SCMP_SYS(flistxattr),
    SCMP_SYS(dup),
    SCMP_SYS(dup2),
    SCMP_SYS(dup3),
    SCMP_SYS(pipe2),
    SCMP_SYS(eventfd2),
    SCMP_SYS(poll),
    SCMP_SYS(ppoll),
    SCMP_SYS(select),
    SCMP_SYS(pselect6),
    SCMP_SYS(mmap),
    SCMP_SYS(munmap),
    SCMP_SYS(mremap),
    SCMP_SYS(mprotect),
    SCMP_SYS(madvise),
    SCMP_SYS(msync),
    SCMP_SYS(brk),
    SCMP_SYS(membarrier),
    SCMP_SYS(futex),
    SCMP_SYS(set_robust_list),
    SCMP_SYS(rseq),
    SCMP_SYS(set_tid_address),
    SCMP_SYS(arch_prctl),
    SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(getcpu),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_getres),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(nanosleep),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(time),
    SCMP_SYS(times),
    SCMP_SYS(getrusage),
    SCMP_SYS(getrandom),
    SCMP_SYS(getpid),
    SCMP_SYS(getppid),
    SCMP_SYS(gettid),
    SCMP_SYS(getuid),
    SCMP_SYS(geteuid),
    SCMP_SYS(getgid),
    SCMP_SYS(getegid),
    SCMP_SYS(getrlimit),
    SCMP_SYS(sysinfo),
    SCMP_SYS(uname),
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(sigaltstack),
    SCMP_SYS(restart_syscall),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
};

/// Allowed when an argument has this value under a mask.
struct Conditional {
    int call;
    unsigned argument;
    quint64 mask;
    quint64 value;
};

constexpr quint64 kEveryBit = ~quint64{0};
constexpr quint64 kWritingFlags = O_ACCMODE | O_CREAT | O_TRUNC | O_APPEND;
constexpr quint64 kCloneThread = 0x0001'0000;

std::vector<Conditional> conditionals()
{
    const auto self = static_cast<quint64>(::getpid());
    std::vector<Conditional> rows{
        {SCMP_SYS(open), 1, kWritingFlags, O_RDONLY},     {SCMP_SYS(openat), 2, kWritingFlags, O_RDONLY},
        {SCMP_SYS(clone), 0, kCloneThread, kCloneThread}, {SCMP_SYS(tgkill), 0, kEveryBit, self},
        {SCMP_SYS(prctl), 0, kEveryBit, PR_SET_NAME},     {SCMP_SYS(prlimit64), 2, kEveryBit, 0},
        {SCMP_SYS(ioctl), 1, kEveryBit, FIONREAD},
    };
    for (const quint64 command : {F_GETFD, F_SETFD, F_GETFL, F_SETFL, F_DUPFD, F_DUPFD_CLOEXEC})
        rows.push_back({SCMP_SYS(fcntl), 1, kEveryBit, command});
    return rows;
}

bool raiseSeccomp()
{
    scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ERRNO(EPERM));
    if (!filter)
        return false;
    bool ok = true;
    for (const int call : kAllowed)
        ok = ok && seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0) == 0;
    for (const Conditional &row : conditionals())
        ok = ok
            && seccomp_rule_add(filter, SCMP_ACT_ALLOW, row.call, 1,
                                SCMP_CMP(row.argument, SCMP_CMP_MASKED_EQ, row.mask, row.value))
                == 0;
    // The C library falls back to clone, whose flags a filter can see.
    ok = ok && seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0;
    ok = ok && seccomp_load(filter) == 0;
    seccomp_release(filter);
    return ok;
}

} // namespace

quint32 raiseGuard(quint64 addressSpace)
{
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    quint32 parts = 0;
    if (raiseLandlock())
        parts |= GuardLandlock;
    if (raiseLimits(addressSpace))
        parts |= GuardLimits;
    if (raiseSeccomp())
        parts |= GuardSeccomp;
    return parts;
}

QString guardNames(quint32 parts)
{
    QStringList names;
    if (parts & GuardLandlock)
        names.append(QStringLiteral("Landlock"));
    if (parts & GuardSeccomp)
        names.append(QStringLiteral("seccomp"));
    if (parts & GuardLimits)
        names.append(QStringLiteral("resource limits"));
    return names.isEmpty() ? QStringLiteral("nothing") : names.join(QLatin1String(", "));
}

} // namespace quorvin
