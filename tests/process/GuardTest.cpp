// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/Guard.h"

#include "support/TestFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
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
bool goesWell(const std::function<bool()> &attempt)
{
    const pid_t child = ::fork();
    if (child == 0) {
        raiseGuard(0);
        ::_exit(attempt() ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

TEST(Guard, ReadingIsAllowed)
{
    const test::TestFolder folder;
    const QByteArray path = folder.write(QStringLiteral("a")).toUtf8();
    EXPECT_TRUE(goesWell([&] { return ::open(path.constData(), O_RDONLY | O_CLOEXEC) >= 0; }));
    EXPECT_TRUE(goesWell([&] {
        std::jthread([] {}).join();
        return !std::vector<char>(100 << 20).empty();
    }));
}

TEST(Guard, ChangingAnythingIsRefused)
{
    const test::TestFolder folder;
    const QByteArray path = folder.write(QStringLiteral("a"), "old").toUtf8();
    const QByteArray fresh = (folder / QStringLiteral("b")).toUtf8();
    const pid_t parent = ::getpid();
    const std::vector<std::pair<const char *, std::function<bool()>>> attempts{
        {"write", [&] { return ::open(path.constData(), O_WRONLY) >= 0; }},
        {"truncate",
         [&] {
             return ::open(path.constData(), O_RDONLY | O_TRUNC) >= 0 || ::truncate(path.constData(), 0) == 0;
         }},
        {"create", [&] { return ::open(fresh.constData(), O_RDWR | O_CREAT, 0600) >= 0; }},
        {"remove", [&] { return ::unlink(path.constData()) == 0; }},
        {"rename", [&] { return ::rename(path.constData(), fresh.constData()) == 0; }},
        {"attribute", [&] { return ::setxattr(path.constData(), "user.a", "x", 1, 0) == 0; }},
        {"network", [] { return ::socket(AF_INET, SOCK_STREAM, 0) >= 0; }},
        {"local socket", [] { return ::socket(AF_UNIX, SOCK_STREAM, 0) >= 0; }},
        {"program", [] { return ::execl("/bin/true", "true", nullptr) == 0; }},
        {"process", [] { return ::fork() >= 0; }},
        {"signal", [&] { return ::kill(parent, 0) == 0; }},
        {"trace", [&] { return ::ptrace(PTRACE_ATTACH, parent, nullptr, nullptr) == 0; }},
    };
    for (const auto &[name, attempt] : attempts)
        EXPECT_FALSE(goesWell(attempt)) << name;
    EXPECT_EQ(test::contentOf(QString::fromUtf8(path)), "old");
}

TEST(Guard, PartsHaveNames)
{
    EXPECT_EQ(guardNames(GuardLimits | GuardLandlock | GuardSeccomp),
              QStringLiteral("Landlock, seccomp, resource limits"));
    EXPECT_EQ(guardNames(0), QStringLiteral("nothing"));
}

} // namespace quorvin
