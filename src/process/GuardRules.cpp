// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/GuardRules.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <linux/landlock.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>

#include <array>

namespace quorvin {

namespace {

/// What a process needs that reads files, takes memory, starts threads of its own and ends.
constexpr std::array kReading{
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

/// To become another program.
constexpr std::array kRunning{
    SCMP_SYS(execve),
    SCMP_SYS(execveat),
    SCMP_SYS(getgroups),
    SCMP_SYS(getpgrp),
};

/// To make files and put them in the place of others. Where, is for Landlock to say.
constexpr std::array kWriting{
    SCMP_SYS(open),      SCMP_SYS(openat),    SCMP_SYS(creat),     SCMP_SYS(pwrite64),
    SCMP_SYS(pwritev),   SCMP_SYS(ftruncate), SCMP_SYS(fallocate), SCMP_SYS(copy_file_range),
    SCMP_SYS(fsync),     SCMP_SYS(fdatasync), SCMP_SYS(rename),    SCMP_SYS(renameat),
    SCMP_SYS(renameat2), SCMP_SYS(link),      SCMP_SYS(linkat),    SCMP_SYS(unlink),
    SCMP_SYS(unlinkat),  SCMP_SYS(mkdir),     SCMP_SYS(mkdirat),   SCMP_SYS(flock),
};

constexpr quint64 kEveryBit = ~quint64{0};
constexpr quint64 kWritingFlags = O_ACCMODE | O_CREAT | O_TRUNC | O_APPEND;
constexpr quint64 kCloneThread = 0x0001'0000;

constexpr std::array kThreadsAndDescriptors{
    ConditionalCall{SCMP_SYS(clone), 0, kCloneThread, kCloneThread},
    ConditionalCall{SCMP_SYS(prctl), 0, kEveryBit, PR_SET_NAME},
    ConditionalCall{SCMP_SYS(prlimit64), 2, kEveryBit, 0},
    // Memory that is shared and has no file is counted by no limit.
    ConditionalCall{SCMP_SYS(mmap), 3, MAP_ANONYMOUS, 0},
    ConditionalCall{SCMP_SYS(mmap), 3, MAP_SHARED, 0},
    ConditionalCall{SCMP_SYS(ioctl), 1, kEveryBit, FIONREAD},
    ConditionalCall{SCMP_SYS(fcntl), 1, kEveryBit, F_GETFD},
    ConditionalCall{SCMP_SYS(fcntl), 1, kEveryBit, F_SETFD},
    ConditionalCall{SCMP_SYS(fcntl), 1, kEveryBit, F_GETFL},
    ConditionalCall{SCMP_SYS(fcntl), 1, kEveryBit, F_SETFL},
    ConditionalCall{SCMP_SYS(fcntl), 1, kEveryBit, F_DUPFD},
    ConditionalCall{SCMP_SYS(fcntl), 1, kEveryBit, F_DUPFD_CLOEXEC},
};

constexpr std::array kSharingBlocks{
    ConditionalCall{SCMP_SYS(ioctl), 1, kEveryBit, FICLONE},
};

constexpr std::array kOpenToRead{
    ConditionalCall{SCMP_SYS(open), 1, kWritingFlags, O_RDONLY},
    ConditionalCall{SCMP_SYS(openat), 2, kWritingFlags, O_RDONLY},
};

/// The interpreter, and what the kernel loads it with.
constexpr std::array kPerl{"/usr/bin/perl", "/lib64/ld-linux-x86-64.so.2", "/lib/ld-linux-aarch64.so.1"};

constexpr std::array kEverything{"/"};

/// What the libraries load as they go: further libraries, the kinds of files, time zones, texts; and what the
/// process can see of itself.
constexpr std::array kOfTheSystem{
    "/usr/lib", "/usr/share", "/lib", "/lib64", "/etc/ld.so.cache", "/etc/localtime", "/proc/self",
};

constexpr quint64 kFolderRights = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_MAKE_REG
    | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR
    | kLandlockRefer | kLandlockTruncate;

} // namespace

const GuardRules &guardRules(GuardProfile profile)
{
    static const GuardRules reader{.calls = {kReading},
                                   .conditionals = {kThreadsAndDescriptors, kOpenToRead},
                                   .folderRights = 0,
                                   .writesFiles = false,
                                   .readable = kOfTheSystem,
                                   .programs = {}};
    static const GuardRules exifTool{.calls = {kReading, kRunning},
                                     .conditionals = {kThreadsAndDescriptors, kOpenToRead},
                                     .folderRights = 0,
                                     .writesFiles = false,
                                     .readable = kEverything,
                                     .programs = kPerl};
    static const GuardRules writer{.calls = {kReading, kWriting},
                                   .conditionals = {kThreadsAndDescriptors, kSharingBlocks},
                                   .folderRights = kFolderRights,
                                   .writesFiles = true,
                                   .readable = kEverything,
                                   .programs = {}};
    switch (profile) {
    case GuardProfile::ExifTool:
        return exifTool;
    case GuardProfile::Writer:
        return writer;
    case GuardProfile::Reader:
        break;
    }
    return reader;
}

} // namespace quorvin
