// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/NativePath.h"
#include "process/Frames.h"
#include "process/JobCounter.h"
#include "process/RecordBytes.h"

#include <sys/prctl.h>
#include <sys/ptrace.h>
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

quint32 job = 0; ///< the number of the order in hand
ReaderRoots roots;

/// The answer to the job: that it is done, and what came of it.
void answer(const QByteArray &frame)
{
    say(frameOf(JobDone{job}) + frame);
}

QByteArray report(const QByteArray &text)
{
    return frameOf(EncodedReport{job, text});
}

/// The length of a frame, and its kind.
QByteArray head(quint32 length, const ReaderMessage &message)
{
    ByteWriter writer;
    writer.number(length);
    writer.number(static_cast<quint8>(message.index()));
    return writer.take();
}

void eatMemory()
{
    std::set_new_handler([] { std::_Exit(kOutOfMemoryStatus); });
    for (std::vector<std::vector<char>> eaten;;)
        eaten.emplace_back(64 << 20, 'x');
}

/// Keeps this process from being collected by its parent, even when it has been killed; answers with the
/// number of the process that does so.
void getTraced()
{
    const pid_t traced = ::getpid();
    ::prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY);
    std::array<int, 2> ready{};
    if (::pipe(ready.data()) != 0)
        std::_Exit(EXIT_FAILURE);
    const pid_t tracer = ::fork();
    if (tracer == 0) {
        ::close(kReaderSocket);
        const bool traces = ::ptrace(PTRACE_SEIZE, traced, nullptr, nullptr) == 0;
        const ssize_t told = ::write(ready[1], traces ? "y" : "n", 1);
        ::sleep(traces && told == 1 ? 60 : 0);
        std::_Exit(EXIT_SUCCESS);
    }
    char traces = 'n';
    if (::read(ready[0], &traces, 1) != 1 || traces != 'y')
        std::_Exit(EXIT_FAILURE);
    answer(report(QByteArray::number(tracer)));
}

QByteArray environment()
{
    QByteArray all;
    for (char **entry = environ; *entry; ++entry)
        all += QByteArray(*entry) + '\n';
    return all;
}

/// Where the three standard streams lead.
QByteArray streams()
{
    QByteArray all;
    for (const char *stream : {"/proc/self/fd/0", "/proc/self/fd/1", "/proc/self/fd/2"}) {
        std::array<char, 256> target{};
        all += ::readlink(stream, target.data(), target.size() - 1) > 0 ? target.data() : "closed";
        all += ' ';
    }
    return all;
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
             answer(report("farewell"));
             std::_Exit(EXIT_SUCCESS);
         }},
        {QStringLiteral("no bytes"), [] { answer(head(0, EncodedReport())); }},
        {QStringLiteral("too long"), [] { answer(head(EncodedReport::kMostBytes + 2, EncodedReport())); }},
        {QStringLiteral("long failure"),
         [] {
             answer(frameOf(JobFailed{job, Error{{}, 0, QString(JobFailed::kMostBytes, u'x')}}));
         }},
        {QStringLiteral("half"),
         [] {
             answer(head(1000, EncodedReport()) + "half");
             std::_Exit(EXIT_SUCCESS);
         }},
        {QStringLiteral("stalls"),
         [] {
             answer(head(1000, EncodedReport()) + "half");
             ::pause();
         }},
        {QStringLiteral("dribbles"),
         [] {
             for (answer(head(100'000, EncodedReport()));; ::usleep(1000))
                 say("x");
         }},
        {QStringLiteral("no kind"), [] { answer(QByteArray("\5\0\0\0\x09what", 9)); }},
        {QStringLiteral("no record"),
         [] {
             answer(frameOf(EncodedRecord{job, QByteArray(500, '\xff')}));
         }},
        {QStringLiteral("another kind"),
         [] {
             answer(frameOf(EncodedRecord{job, RecordEncoder().encode({})}));
         }},
        {QStringLiteral("another job"),
         [] {
             answer(frameOf(EncodedReport{job - 1, "another"}));
         }},
        {QStringLiteral("done with another"), [] { say(frameOf(JobDone{job + 1}) + report("another")); }},
        {QStringLiteral("left over"),
         [] {
             QByteArray frame = report("left over") + 'x';
             ++frame[0];
             answer(frame);
         }},
        {QStringLiteral("says another name"),
         [] {
             RecordContents contents;
             contents.filename = QStringLiteral("/another");
             answer(frameOf(EncodedRecord{job, RecordEncoder().encode(contents)}));
         }},
        {QStringLiteral("digests"),
         [] {
             // Longer than its job may take.
             for (quint64 done = 1; done <= 5; ++done) {
                 ::usleep(400'000);
                 say(frameOf(JobProgress{job, {done, 5}}));
             }
             answer(frameOf(EncodedRecord{job, RecordEncoder().encode({})}));
         }},
        {QStringLiteral("no way on"),
         [] {
             for (;; ::usleep(1000))
                 say(frameOf(JobProgress{job, {1, 5}}));
         }},
        {QStringLiteral("burns on"),
         [] {
             say(frameOf(JobProgress{job, {1, 5}}));
             for (const volatile bool on = true; on;) { }
         }},
        {QStringLiteral("logs"),
         [] {
             say(frameOf(LogLine{false, QStringLiteral("a phrase")}));
             answer(frameOf(LogLine{true, QStringLiteral("a library")}) + report("logs"));
         }},
        {QStringLiteral("environment"), [] { answer(report(environment())); }},
        {QStringLiteral("streams"), [] { answer(report(streams())); }},
        {QStringLiteral("traced"), getTraced},
        {QStringLiteral("roots"),
         [] {
             QStringList all(roots.paths.begin(), roots.paths.end());
             answer(report(all.join(u' ').toUtf8()));
         }},
        {QStringLiteral("outside"),
         [] {
             if (roots.through.isEmpty())
                 say(frameOf(JobOutside{job}));
             else
                 answer(report("through " + roots.through.toUtf8()));
         }},
        {QStringLiteral("always outside"), [] { say(frameOf(JobOutside{job})); }},
        {QStringLiteral("greets again"), [] { answer(frameOf(Greeting())); }},
        {QStringLiteral("answers twice"), [] { answer(report("answers twice") + report("another")); }},
    };
    return table;
}

/// The content of the next frame; "" at the end.
QByteArray heard()
{
    quint32 size = 0;
    if (::read(kReaderSocket, &size, sizeof size) != sizeof size)
        return {};
    QByteArray content(static_cast<qsizetype>(size), Qt::Uninitialized);
    return ::read(kReaderSocket, content.data(), size) == static_cast<ssize_t>(size) ? content : QByteArray();
}

bool answerNext()
{
    const QByteArray content = heard();
    if (content.isEmpty())
        return false;
    static JobCounter counter(kReaderCounter);
    counter.take();
    const auto order = orderOf(content);
    job = order->number;
    const QString name = lastPathComponent(pathOf(order->request));
    if (const auto fault = faults().find(name); fault != faults().end())
        fault->second();
    else
        answer(report(name.toUtf8()));
    return true;
}

} // namespace

int main()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const auto first = rootsOf(heard());
    if (!first)
        return EXIT_FAILURE;
    roots = *first;
    say(frameOf(Greeting()));
    while (answerNext()) { }
    return EXIT_SUCCESS;
}
