// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/Guard.h"

#include "support/TestFolder.h"

#include <QFile>
#include <QStandardPaths>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <functional>
#include <thread>
#include <vector>

namespace quorvin {

namespace {

/// Tries it in a guarded process; true when it went well there.
bool goesWell(const std::function<bool()> &attempt, const Guard &guard = {})
{
    const pid_t child = ::fork();
    if (child == 0) {
        raiseGuard(guard);
        ::_exit(attempt() ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

using Attempts = std::vector<std::pair<const char *, std::function<bool()>>>;

/// What no profile may do to a file, or to anything else.
Attempts changesOf(const QByteArray &path)
{
    const QByteArray fresh = path + "-new";
    const pid_t parent = ::getpid();
    return {
        {"write", [=] { return ::open(path.constData(), O_WRONLY) >= 0; }},
        {"truncate",
         [=] {
             return ::open(path.constData(), O_RDONLY | O_TRUNC) >= 0 || ::truncate(path.constData(), 0) == 0;
         }},
        {"create", [=] { return ::open(fresh.constData(), O_RDWR | O_CREAT, 0600) >= 0; }},
        {"remove", [=] { return ::unlink(path.constData()) == 0; }},
        {"rename", [=] { return ::rename(path.constData(), fresh.constData()) == 0; }},
        {"attribute", [=] { return ::setxattr(path.constData(), "user.a", "x", 1, 0) == 0; }},
        {"network", [] { return ::socket(AF_INET, SOCK_STREAM, 0) >= 0; }},
        {"local socket", [] { return ::socket(AF_UNIX, SOCK_STREAM, 0) >= 0; }},
        {"memory that no limit counts",
         [] {
             return ::mmap(nullptr, 4096, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)
                 != MAP_FAILED;
         }},
        {"mode", [=] { return ::chmod(path.constData(), 0600) == 0; }},
        {"program", [] { return ::execl("/bin/true", "true", nullptr) == 0; }},
        {"process", [] { return ::fork() >= 0; }},
        {"signal", [=] { return ::kill(parent, 0) == 0; }},
        {"trace", [=] { return ::ptrace(PTRACE_ATTACH, parent, nullptr, nullptr) == 0; }},
    };
}

/// Of one that may read in a folder. The descriptor is for the guarded process to close.
Guard readerGuard(const test::TestFolder &folder)
{
    return {.readable = {::open(folder.path().toUtf8().constData(), O_PATH | O_CLOEXEC)}};
}

Guard exifToolGuard()
{
    return {.profile = GuardProfile::ExifTool,
            .program = QStandardPaths::findExecutable(QStringLiteral("exiftool")).toStdString()};
}

/// Of one that may write nowhere, as it has no folder.
Guard writerGuard(int folder = -1)
{
    return {.profile = GuardProfile::Writer, .folder = folder};
}

} // namespace

TEST(Guard, ReaderReadsInItsFoldersOnly)
{
    const test::TestFolder folder;
    const test::TestFolder other;
    const QString outside = other.write(QStringLiteral("a"));
    const QString link = folder / QStringLiteral("link");
    ASSERT_TRUE(QFile::link(outside, link));
    const QString closed = folder.write(QStringLiteral("closed"));
    const QString closedOutside = other.write(QStringLiteral("closed"));
    for (const QString &path : {closed, closedOutside})
        ASSERT_TRUE(QFile::setPermissions(path, {}));
    const auto reads = [](const QString &path, const Guard &guard) {
        return goesWell([&] { return ::open(path.toUtf8().constData(), O_RDONLY | O_CLOEXEC) >= 0; }, guard);
    };
    const Guard guard = readerGuard(folder);
    EXPECT_TRUE(reads(folder.write(QStringLiteral("below/a")), guard));
    EXPECT_TRUE(reads(QStringLiteral("/usr/share/mime/mime.cache"), guard));
    for (const QString &path : {outside, link, QStringLiteral("/etc/passwd"), other.path(), closedOutside})
        EXPECT_FALSE(reads(path, guard)) << path.toStdString();
    const Guard ofOneFile{.readable = {::open(closed.toUtf8().constData(), O_PATH | O_CLOEXEC)}};
    EXPECT_EQ(reads(closed, ofOneFile), ::geteuid() == 0);
    EXPECT_FALSE(reads(folder / QStringLiteral("below/a"), ofOneFile)) << "beside the one file";
    // Root reads the files of others, but no guarded process does so elsewhere.
    EXPECT_EQ(reads(closed, guard), ::geteuid() == 0);
    EXPECT_FALSE(reads(closed, writerGuard()));
}

TEST(Guard, ThreadsAndMemoryAreAllowed)
{
    EXPECT_TRUE(goesWell([&] {
        std::jthread([] {}).join();
        return !std::vector<char>(100 << 20).empty();
    }));
}

TEST(Guard, ChangingAnythingIsRefused)
{
    const test::TestFolder folder;
    const QByteArray path = folder.write(QStringLiteral("a"), "old").toUtf8();
    for (const Guard &guard : {readerGuard(folder), exifToolGuard(), writerGuard()}) {
        for (const auto &[name, attempt] : changesOf(path))
            EXPECT_FALSE(goesWell(attempt, guard))
                << name << " in profile " << static_cast<int>(guard.profile);
    }
    EXPECT_EQ(test::contentOf(QString::fromUtf8(path)), "old");
}

TEST(Guard, GrowingAnInheritedFileIsAnError)
{
    const test::TestFolder folder;
    const int file = ::open(folder.write(QStringLiteral("a"), "old").toUtf8().constData(),
                            O_WRONLY | O_APPEND | O_CLOEXEC);
    EXPECT_TRUE(goesWell([&] { return ::write(file, "x", 1) < 0 && errno == EFBIG; }));
    ::close(file);
}

TEST(Guard, ExifToolRunsAndReads)
{
    const Guard guard = exifToolGuard();
    if (guard.program.empty())
        GTEST_SKIP() << "no exiftool";
    const QByteArray sample = test::sample(QStringLiteral("photo.jpg")).toUtf8();
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    const auto run = [&](const char *option, const char *file) {
        return goesWell(
            [&] {
                ::dup2(nowhere, STDOUT_FILENO);
                ::dup2(nowhere, STDERR_FILENO);
                return ::execl(guard.program.c_str(), "exiftool", option, file, nullptr) == 0;
            },
            guard);
    };
    EXPECT_TRUE(run("-ver", nullptr));
    EXPECT_TRUE(run("-json", sample.constData()));
    EXPECT_FALSE(run("-Artist=x", sample.constData()));
    ::close(nowhere);
}

TEST(Guard, WriterWritesInItsFolderOnly)
{
    const test::TestFolder folder;
    const test::TestFolder other;
    const int descriptor = ::open(folder.path().toUtf8().constData(), O_PATH | O_CLOEXEC);
    const auto replaces = [&](const test::TestFolder &place) {
        const QByteArray temporary = (place / QStringLiteral("new")).toUtf8();
        const QByteArray target = (place / QStringLiteral("old")).toUtf8();
        return goesWell(
            [&] {
                const int file = ::open(temporary.constData(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
                return ::write(file, "new", 3) == 3 && ::fsync(file) == 0
                    && ::rename(temporary.constData(), target.constData()) == 0;
            },
            writerGuard(descriptor));
    };
    folder.write(QStringLiteral("old"), "old");
    const QString kept = other.write(QStringLiteral("old"), "old");
    EXPECT_TRUE(replaces(folder));
    EXPECT_FALSE(replaces(other));
    EXPECT_EQ(test::contentOf(folder / QStringLiteral("old")), "new");
    EXPECT_EQ(test::contentOf(kept), "old");
    const QByteArray inside = (folder / QStringLiteral("old")).toUtf8();
    const QByteArray outside = (other / QStringLiteral("moved")).toUtf8();
    EXPECT_FALSE(goesWell([&] { return ::rename(inside.constData(), outside.constData()) == 0; },
                          writerGuard(descriptor)));
    ::close(descriptor);
}

TEST(Guard, PartsHaveNames)
{
    EXPECT_EQ(guardNames(GuardLimits | GuardLandlock | GuardSeccomp),
              QStringLiteral("Landlock, seccomp, resource limits"));
    EXPECT_EQ(guardNames(0), QStringLiteral("nothing"));
    EXPECT_EQ(missingGuardNames(GuardSeccomp), QStringLiteral("Landlock, resource limits"));
    EXPECT_EQ(missingGuardNames(GuardLimits | GuardLandlock | GuardSeccomp), QString());
}

} // namespace quorvin
