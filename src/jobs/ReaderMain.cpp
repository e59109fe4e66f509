// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Log.h"
#include "platform/UserLocale.h"
#include "process/Bytes.h"
#include "process/Frames.h"
#include "process/Guard.h"
#include "process/Job.h"
#include "process/JobCounter.h"
#include "process/RecordBytes.h"
#include "readers/RecordBuilder.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <new>

// The resident reader: takes jobs from its socket, one after the other, and answers them. Started by
// ReaderProcess as "quorvin-reader PARENT MEMORY": the parent's process number, and the most bytes of address
// space, 0 for no limit.

using namespace quorvin;

namespace {

constexpr int kJobsBetweenMemoryChecks = 8;

bool readAll(char *bytes, std::size_t length)
{
    while (length > 0) {
        const ssize_t count = ::read(kReaderSocket, bytes, length);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes += count;
        length -= static_cast<std::size_t>(count);
    }
    return true;
}

bool writeAll(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t count = ::write(kReaderSocket, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes = bytes.sliced(count);
    }
    return true;
}

std::optional<Job> nextJob()
{
    quint32 length = 0;
    if (!readAll(reinterpret_cast<char *>(&length), sizeof length) || length > kMostRequestBytes)
        return std::nullopt;
    QByteArray content(static_cast<qsizetype>(length), Qt::Uninitialized);
    return readAll(content.data(), length) ? jobOfRequest(content) : std::nullopt;
}

QByteArray replyOf(const JobResult &result, RecordEncoder &encoder)
{
    if (!result)
        return replyFrame(ReplyKind::Failure, result.error().toUtf8());
    if (!result->record)
        return replyFrame(ReplyKind::Report, result->report.toUtf8());
    return replyFrame(ReplyKind::Record, encoder.encode(result->record->contents()));
}

bool answer(const Job &job, RecordEncoder &encoder)
{
    const JobResult result = doJob(job);
    return writeAll(QByteArrayView(&kDoneMark, 1)) && writeAll(replyOf(result, encoder));
}

/// A reader ends with its parent, whatever it is doing.
void tieTo(pid_t parent)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        std::_Exit(EXIT_SUCCESS);
    // What interrupts the parent at the terminal is the parent's affair.
    std::signal(SIGINT, SIG_IGN);
    ::close_range(kReaderCounter + 1, ~0U, 0);
}

/// Whether more than half of the address space is in use.
bool isShortOf(quint64 addressSpace)
{
    std::array<char, 32> text{};
    const int statm = ::open("/proc/self/statm", O_RDONLY | O_CLOEXEC);
    const bool wasRead = ::read(statm, text.data(), text.size() - 1) > 0;
    ::close(statm);
    const quint64 used
        = std::strtoull(text.data(), nullptr, 10) * static_cast<quint64>(::sysconf(_SC_PAGESIZE));
    return addressSpace > 0 && wasRead && used > addressSpace / 2;
}

[[noreturn]] void endWithoutMemory()
{
    std::_Exit(kOutOfMemoryStatus);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3)
        return EXIT_FAILURE;
    tieTo(static_cast<pid_t>(std::strtol(argv[1], nullptr, 10)));
    std::set_new_handler(endWithoutMemory);
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    const QCoreApplication application(argc, argv);
    useUtf8CharacterType();
    RecordBuilder::setupLibraries();

    JobCounter counter(kReaderCounter);
    RecordEncoder encoder;
    const quint64 memory = std::strtoull(argv[2], nullptr, 10);
    if (!writeAll(helloFrame(raiseGuard(memory))))
        return EXIT_FAILURE;
    for (int jobs = 1; const auto job = nextJob(); ++jobs) {
        counter.take();
        // One that earlier files have left short of memory makes way for a fresh one.
        if (!answer(*job, encoder) || (jobs % kJobsBetweenMemoryChecks == 0 && isShortOf(memory)))
            break;
    }
    std::_Exit(EXIT_SUCCESS);
}
