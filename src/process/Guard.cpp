// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/Guard.h"

#include <QStringList>

#include <fcntl.h>
#include <linux/capability.h>
#include <linux/landlock.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysinfo.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

namespace quorvin {

namespace {

constexpr rlim_t kOpenFiles = 256;
constexpr rlim_t kMostTasks = 256;

bool setLimit(__rlimit_resource resource, rlim_t value)
{
    const rlimit limit{value, value};
    return ::setrlimit(resource, &limit) == 0;
}

bool keepCapabilities(quint32 kept)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> sets{};
    if (::syscall(SYS_capget, &header, sets.data()) != 0)
        return false;
    const quint32 held = sets[0].permitted & kept;
    sets = {};
    sets[0].effective = sets[0].permitted = held;
    return ::syscall(SYS_capset, &header, sets.data()) == 0;
}

/// The one stack that grows by itself, and is no data.
bool limitStack()
{
    constexpr rlim_t kMostStack = rlim_t{64} << 20;
    rlimit now{};
    return ::getrlimit(RLIMIT_STACK, &now) == 0 && setLimit(RLIMIT_STACK, std::min(now.rlim_cur, kMostStack));
}

/// The kernel counts the tasks of all processes of a user: those that run now, at most, and some more.
bool limitTasks()
{
    struct sysinfo now { };
    return ::sysinfo(&now) == 0 && setLimit(RLIMIT_NPROC, rlim_t{now.procs} + kMostTasks);
}

bool raiseLimits(const GuardRules &profile)
{
    // What would grow a file fails rather than ends the process.
    std::signal(SIGXFSZ, SIG_IGN);
    const bool sizes = profile.writesFiles || setLimit(RLIMIT_FSIZE, 0);
    // Of 1, not 0: a program that the system hands dumps to would get them at 0.
    return setLimit(RLIMIT_CORE, 1) && setLimit(RLIMIT_NOFILE, kOpenFiles) && limitTasks() && limitStack()
        && sizes;
}

/// Every right that this Landlock knows to withhold.
quint64 landlockRights(long version)
{
    quint64 rights = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;
    if (version >= 2)
        rights |= kLandlockRefer;
    if (version >= 3)
        rights |= kLandlockTruncate;
    return rights;
}

/// What a rule set allows beneath a descriptor, or of the file that it names. It is closed. One that names
/// nothing is left out: it is of no use then, and harms nobody.
bool allow(int rules, int descriptor, quint64 rights)
{
    struct stat facts { };
    if (descriptor < 0)
        return true;
    if (::fstat(descriptor, &facts) == 0 && !S_ISDIR(facts.st_mode))
        rights &= LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_WRITE_FILE;
    const landlock_path_beneath_attr beneath{.allowed_access = rights, .parent_fd = descriptor};
    const bool added = ::syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &beneath, 0) == 0;
    ::close(descriptor);
    return added;
}

int pathOnly(const char *path)
{
    return ::open(path, O_PATH | O_CLOEXEC);
}

bool raiseLandlock(const Guard &guard, const GuardRules &profile)
{
    const long version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return false;
    const landlock_ruleset_attr attributes{.handled_access_fs = landlockRights(version)};
    const int rules
        = static_cast<int>(::syscall(SYS_landlock_create_ruleset, &attributes, sizeof attributes, 0));
    constexpr quint64 kRead = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
    bool ok = true;
    for (const char *path : profile.readable)
        ok = allow(rules, pathOnly(path), kRead) && ok;
    for (const int descriptor : guard.readable)
        ok = allow(rules, descriptor, kRead) && ok;
    if (profile.folderRights != 0)
        ok = ok
            && allow(rules, ::fcntl(guard.folder, F_DUPFD_CLOEXEC, 0),
                     profile.folderRights & attributes.handled_access_fs);
    constexpr quint64 kRun = LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_READ_FILE;
    for (const char *program : profile.programs)
        ok = ok && allow(rules, pathOnly(program), kRun);
    if (!profile.programs.empty())
        ok = ok && allow(rules, pathOnly(guard.program.c_str()), kRun);
    ok = ok && ::syscall(SYS_landlock_restrict_self, rules, 0) == 0;
    ::close(rules);
    return ok;
}

bool raiseSeccomp(const GuardRules &profile)
{
    scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ERRNO(EPERM));
    if (!filter)
        return false;
    bool ok = true;
    for (const auto &calls : profile.calls) {
        for (const int call : calls)
            ok = ok && seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0) == 0;
    }
    const auto allowWhen = [&](const ConditionalCall &row) {
        const scmp_arg_cmp when = SCMP_CMP(row.argument, SCMP_CMP_MASKED_EQ, row.mask, row.value);
        return seccomp_rule_add(filter, SCMP_ACT_ALLOW, row.call, 1, when) == 0;
    };
    for (const auto &rows : profile.conditionals)
        ok = ok && std::ranges::all_of(rows, allowWhen);
    // An abort raises its signal in the process itself.
    ok = ok && allowWhen({SCMP_SYS(tgkill), 0, ~quint64{0}, static_cast<quint64>(::getpid())});
    // The C library falls back to clone, whose flags a filter can see.
    ok = ok && seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0;
    ok = ok && seccomp_load(filter) == 0;
    seccomp_release(filter);
    return ok;
}

} // namespace

quint32 raiseGuard(const Guard &guard)
{
    const GuardRules &rules = guardRules(guard.profile);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    quint32 parts = 0;
    if (raiseLandlock(guard, rules))
        parts |= GuardLandlock;
    const bool isConfined = guard.profile == GuardProfile::Reader && (parts & GuardLandlock) != 0;
    if (raiseLimits(rules) && keepCapabilities(isConfined ? 1U << CAP_DAC_READ_SEARCH : 0))
        parts |= GuardLimits;
    if (raiseSeccomp(rules))
        parts |= GuardSeccomp;
    else
        keepCapabilities(0); // which opens files by handle, past the folders that lead to them
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

QString missingGuardNames(quint32 parts)
{
    const quint32 missing = ~parts & (GuardLandlock | GuardSeccomp | GuardLimits);
    return missing == 0 ? QString() : guardNames(missing);
}

} // namespace quorvin
