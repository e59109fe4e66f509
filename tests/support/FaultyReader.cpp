// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NativePath.h"
#include "process/Bytes.h"
#include "process/Frames.h"
#include "process/JobCounter.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <map>
#include <vector>

// Speaks the reader's language over its socket, but obeys the name of the file: "hang", "crash" and so on;
// any other name is answered with a report of the name.

using namespace quorvin;

namespace {

void say(const QByteArray &bytes)
{
    if (::write(kReaderSocket, bytes.constData(), static_cast<std::size_t>(bytes.size())) < 0)
        std::_Exit(EXIT_FAILURE);
}

/// The answer to a job: the mark that it is done, and a reply.
void answer(const QByteArray &reply)
{
    say(QByteArray(1, kDoneMark) + reply);
}

QByteArray length(quint32 value)
{
    ByteWriter writer;
    writer.number(value);
    return writer.result();
}

void eatMemory()
{
    std::set_new_handler([] { std::_Exit(kOutOfMemoryStatus); });
    for (std::vector<std::vector<char>> eaten;;)
        eaten.emplace_back(64 << 20, 'x');
}

const std::map<QString, std::function<void()>> &faults()
{
    static const std::map<QString, std::function<void()>> table{
        {QStringLiteral("hang"), [] { ::pause(); }},
        {QStringLiteral("burn"),
         [] {
             for (const volatile bool on = true; on;) { }
         }},
        {QStringLiteral("eat"), eatMemory},
        {QStringLiteral("crash"), [] { std::raise(SIGKILL); }},
        {QStringLiteral("silent"), [] { std::_Exit(EXIT_SUCCESS); }},
        {QStringLiteral("farewell"),
         [] {
             answer(replyFrame(ReplyKind::Report, "farewell"));
             std::_Exit(EXIT_SUCCESS);
         }},
        {QStringLiteral("no bytes"), [] { answer(length(0)); }},
        {QStringLiteral("too long"), [] { answer(length(kMostReplyBytes + 1)); }},
        {QStringLiteral("half"),
         [] {
             answer(length(1000) + "half");
             std::_Exit(EXIT_SUCCESS);
         }},
        {QStringLiteral("stalls"),
         [] {
             answer(length(1000) + "half");
             ::pause();
         }},
        {QStringLiteral("dribbles"),
         [] {
             for (answer(length(100'000));; ::usleep(1000))
                 say("x");
         }},
        {QStringLiteral("no kind"), [] { answer(frameOf("\x09what")); }},
        {QStringLiteral("no record"), [] { answer(replyFrame(ReplyKind::Record, QByteArray(500, '\xff'))); }},
    };
    return table;
}

bool answerNext()
{
    quint32 size = 0;
    if (::read(kReaderSocket, &size, sizeof size) != sizeof size)
        return false;
    QByteArray content(static_cast<qsizetype>(size), Qt::Uninitialized);
    if (::read(kReaderSocket, content.data(), size) != static_cast<ssize_t>(size))
        return false;
    static JobCounter counter(kReaderCounter);
    counter.take();
    const QString name = lastPathComponent(jobOfRequest(content)->path);
    if (const auto fault = faults().find(name); fault != faults().end())
        fault->second();
    else
        answer(replyFrame(ReplyKind::Report, name.toUtf8()));
    return true;
}

} // namespace

int main(int, char **argv)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const rlim_t memory = std::strtoull(argv[2], nullptr, 10);
    const rlimit limit{memory, memory};
    if (memory > 0)
        ::setrlimit(RLIMIT_AS, &limit);
    say(helloFrame(0));
    while (answerNext()) { }
    return EXIT_SUCCESS;
}
