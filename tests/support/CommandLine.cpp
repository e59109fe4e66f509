// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/CommandLine.h"

#include "support/TestFolder.h"

#include <QDir>
#include <QProcess>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace quorvin::test {

namespace {

constexpr int kPatience = 60'000; ///< milliseconds

QProcessEnvironment environment()
{
    QProcessEnvironment made = QProcessEnvironment::systemEnvironment();
    made.insert(QStringLiteral("XDG_CONFIG_HOME"), QDir::tempPath() + QStringLiteral("/quorvin-no-settings"));
    return made;
}

int statusOf(const QProcess &process)
{
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

Outcome outcomeOf(QProcess &process)
{
    process.waitForFinished(kPatience);
    return {statusOf(process), process.readAllStandardOutput(), process.readAllStandardError()};
}

/// All that comes until the other end is closed.
QByteArray readAll(int terminal)
{
    QByteArray text;
    std::array<char, 4096> piece{};
    for (ssize_t size = 0; (size = ::read(terminal, piece.data(), piece.size())) > 0;)
        text.append(piece.data(), size);
    return text;
}

} // namespace

Outcome runCommandLine(const QStringList &words, const QByteArray &input, const QString &language)
{
    QProcess process;
    QProcessEnvironment own = environment();
    own.insert(QStringLiteral("LC_ALL"), language);
    process.setProcessEnvironment(own);
    process.start(commandLineProgram(), words);
    process.write(input);
    process.closeWriteChannel();
    return outcomeOf(process);
}

Outcome runInShell(const QString &line)
{
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(
        QStringLiteral("bash"),
        {QStringLiteral("-c"), QStringLiteral("cli() { '%1' \"$@\"; }; ").arg(commandLineProgram()) + line});
    return outcomeOf(process);
}

Outcome runOnTerminal(const QStringList &words, int width, const QString &terminal)
{
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    EXPECT_TRUE(master >= 0 && ::grantpt(master) == 0 && ::unlockpt(master) == 0);
    const QByteArray name = ::ptsname(master);
    const int other = ::open(name.constData(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    const winsize size{24, static_cast<unsigned short>(width), 0, 0};
    ::ioctl(other, TIOCSWINSZ, &size);

    QProcess process;
    QProcessEnvironment variables = environment();
    variables.insert(QStringLiteral("TERM"), terminal);
    process.setProcessEnvironment(variables);
    process.setChildProcessModifier([other] {
        ::dup2(other, STDOUT_FILENO);
        ::dup2(other, STDERR_FILENO);
    });
    process.start(commandLineProgram(), words);
    process.waitForStarted();
    ::close(other);
    Outcome outcome;
    outcome.output = readAll(master);
    ::close(master);
    process.waitForFinished(kPatience);
    outcome.status = statusOf(process);
    return outcome;
}

} // namespace quorvin::test
