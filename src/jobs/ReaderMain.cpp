// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/Jobs.h"
#include "model/Log.h"
#include "platform/EndWithParent.h"
#include "platform/NativePath.h"
#include "platform/UserLocale.h"
#include "process/Frames.h"
#include "process/Guard.h"
#include "process/JobCounter.h"
#include "process/RecordBytes.h"
#include "process/RootOpener.h"
#include "process/oExifToolStayOpenProcess.h"
#include "readers/RecordBuilder.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <mutex>
#include <new>
#include <utility>
#include <vector>

// The resident reader: takes jobs from its socket, one after the other, and answers them. Started by
// ReaderProcess as "quorvin-reader PARENT LOG", with the parent's process number and the parts of the log
// that it wants to have. The parent limits its memory. Where jobs need exiftool, it runs beside the reader;
// one that ends takes the reader with it, which may start no other.

using namespace quorvin;

namespace {

constexpr int kJobsBetweenMemoryChecks = 8;

/// What the parent says. A frame comes with one read, if it is no long one.
class Incoming {
public:
    bool read(char *bytes, std::size_t length)
    {
        while (length > 0) {
            if (_begin == _end && !fill())
                return false;
            const std::size_t count = std::min(length, _end - _begin);
            bytes = std::copy_n(_piece.data() + _begin, count, bytes);
            _begin += count;
            length -= count;
        }
        return true;
    }

private:
    bool fill()
    {
        ssize_t count = 0;
        do {
            count = ::read(kReaderSocket, _piece.data(), _piece.size());
        } while (count < 0 && errno == EINTR);
        _begin = 0;
        _end = static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        return _end > 0;
    }

    std::array<char, 4096> _piece{};
    std::size_t _begin = 0;
    std::size_t _end = 0;
};
Incoming incoming;

/// A frame is written whole, though threads of the libraries may log.
std::mutex writing;

bool writeAll(QByteArrayView bytes)
{
    const std::lock_guard guard(writing);
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

/// What the parent says next, in the form that `meaning` gives it; absent when it says no more.
template <typename Meaning>
auto nextOf(Meaning meaning) -> decltype(meaning(QByteArrayView()))
{
    quint32 length = 0;
    if (!incoming.read(reinterpret_cast<char *>(&length), sizeof length) || length > kMostOrderBytes)
        return std::nullopt;
    QByteArray content(static_cast<qsizetype>(length), Qt::Uninitialized);
    return incoming.read(content.data(), length) ? meaning(content) : std::nullopt;
}

/// The message that carries the result of a job, one form a kind.
class AnswerMaker {
public:
    ReaderMessage messageOf(quint32 job, const JobResult &result)
    {
        if (!result)
            return JobFailed{job, shortened(result.error())};
        return std::visit([&](const auto &kind) { return made(job, kind); }, *result);
    }

private:
    static Error shortened(Error error)
    {
        constexpr qsizetype kMostCharacters = 1000;
        error.description.truncate(kMostCharacters);
        return error;
    }
    ReaderMessage made(quint32 job, const QuorvinDataPtr &record)
    {
        if (record->groups().lengthOfValues() > kMostLengthOfValues)
            return tooLarge(job);
        EncodedRecord answer{job, _encoder.encode(record->contents())};
        // The terms that went into it are lost with it.
        if (answer.record.size() > qsizetype{EncodedRecord::kMostRecord}) {
            _encoder = {};
            return tooLarge(job);
        }
        return answer;
    }
    static ReaderMessage made(quint32 job, const Report &report)
    {
        EncodedReport answer{job, report.text.toUtf8()};
        return answer.text.size() > qsizetype{EncodedReport::kMostReport} ? tooLarge(job) : answer;
    }
    static ReaderMessage made(quint32 job, const RemovalResult &result)
    {
        const EncodedRemoval answer{job, result};
        return frameOf(answer).size() > qsizetype{EncodedRemoval::kMostBytes} ? tooLarge(job) : answer;
    }
    static ReaderMessage made(quint32 job, const SavedFiles &files) { return FilesSaved{job, files}; }
    static ReaderMessage made(quint32 job, const Picture &picture) { return EncodedPicture{job, picture}; }
    static ReaderMessage tooLarge(quint32 job)
    {
        return JobFailed{job, failure(QStringLiteral("there is too much to tell of it")).value()};
    }

    RecordEncoder _encoder;
};

void sendToLog(QtMsgType, const QMessageLogContext &context, const QString &message)
{
    const bool isOfLibrary = qstrcmp(context.category, lcQuorvin().categoryName()) != 0;
    writeAll(frameOf(LogLine{isOfLibrary, message.left(LogLine::kMostCharacters)}));
}

void setUpLog(quint32 parts)
{
    QString rules = QStringLiteral("*=false");
    if (parts & LogPhrases)
        rules += QStringLiteral("\nquorvin.info=true");
    if (parts & LogLibraries)
        rules += QStringLiteral("\nquorvin.libraries=true");
    QLoggingCategory::setFilterRules(rules);
    qInstallMessageHandler(sendToLog);
}

/// Tells the parent how far the digests of a job have come, so that it waits on; not more often than a
/// person can read it.
class ProgressTeller {
public:
    explicit ProgressTeller(quint32 job) : _job(job) { }

    bool operator()(const DigestProgress &progress)
    {
        const auto now = std::chrono::steady_clock::now();
        if (now - _told < kBetween)
            return true;
        _told = now;
        return writeAll(frameOf(JobProgress{_job, progress}));
    }

private:
    static constexpr std::chrono::milliseconds kBetween{500};

    quint32 _job;
    std::chrono::steady_clock::time_point _told = std::chrono::steady_clock::now();
};

/// Whether it is the guard that keeps this process from the file: the file's own rights would not.
bool liesOutside(const QString &path)
{
    const QByteArray bytes = encodePath(path);
    const int file = ::open(bytes.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    const bool isRefused = file < 0 && errno == EACCES;
    ::close(file);
    return isRefused && ::faccessat(AT_FDCWD, bytes.constData(), R_OK, AT_EACCESS) == 0;
}

/// A file that the parent knows to be `through` links is not sent back.
bool answer(const JobOrder &order, const QString &through, oExifToolStayOpenProcess *exifTool,
            AnswerMaker &answers)
{
    const JobResult result = doJob(order.request, {ProgressTeller(order.number), exifTool});
    const QString &path = pathOf(order.request);
    if (!result && path != through && liesOutside(path))
        return writeAll(frameOf(JobOutside{order.number}));
    return writeAll(frameOf(JobDone{order.number}))
        && writeAll(frameOf(answers.messageOf(order.number, result)));
}

/// Whether more than half of the memory is in use that this process may take.
bool isShortOfMemory()
{
    std::array<char, 256> text{};
    const int statm = ::open("/proc/self/statm", O_RDONLY | O_CLOEXEC);
    const bool wasRead = ::read(statm, text.data(), text.size() - 1) > 0;
    ::close(statm);
    // The sixth number: pages of data and stack.
    quint64 pages = 0;
    char *number = text.data();
    for (int i = 0; i < 6; ++i)
        pages = std::strtoull(number, &number, 10);
    rlimit most{};
    return wasRead && ::getrlimit(RLIMIT_DATA, &most) == 0
        && pages * static_cast<quint64>(::sysconf(_SC_PAGESIZE)) > most.rlim_cur / 2;
}

[[noreturn]] void endWithoutMemory()
{
    std::_Exit(kOutOfMemoryStatus);
}

void work(const QString &through, oExifToolStayOpenProcess *exifTool)
{
    JobCounter counter(kReaderCounter);
    AnswerMaker answers;
    for (int jobs = 1; const auto order = nextOf(orderOf); ++jobs) {
        counter.take();
        // One that earlier files have left short of memory makes way for a fresh one.
        if (!answer(*order, through, exifTool, answers) || (exifTool && !exifTool->isRunning())
            || (jobs % kJobsBetweenMemoryChecks == 0 && isShortOfMemory()))
            break;
    }
}

/// Null when it is not installed.
oExifToolStayOpenProcess *startedExifTool(int memoryMiB)
{
    return oExifToolStayOpenProcess::init({.memoryMiB = memoryMiB}).value_or(nullptr).release();
}

/// What the libraries read in the places of this user.
void openOwnPaths(std::vector<int> &descriptors)
{
    QStringList paths{qEnvironmentVariable("TZDIR")};
    for (const QString &folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        paths.append(folder + QStringLiteral("/mime"));
    for (const QString &path : paths) {
        const int descriptor = ::open(encodePath(path).constData(), O_PATH | O_CLOEXEC);
        if (descriptor >= 0)
            descriptors.push_back(descriptor);
    }
}

quint32 raiseGuardFor(const ReaderRoots &roots, std::vector<int> readable)
{
    if (roots.writable.isEmpty())
        return raiseGuard({.readable = std::move(readable)});
    const int folder = ::open(encodePath(roots.writable).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    const quint32 parts
        = raiseGuard({.profile = GuardProfile::Writer, .folder = folder, .readable = std::move(readable)});
    ::close(folder);
    return parts;
}

} // namespace

int main(int argc, char **argv)
try {
    if (argc > 1 && qstrcmp(argv[1], kBecomeExifTool) == 0) {
        becomeExifTool(argc, argv);
        return EXIT_FAILURE;
    }
    if (argc != 3)
        return EXIT_FAILURE;
    endWithParent(static_cast<pid_t>(std::strtol(argv[1], nullptr, 10)), kReaderCounter);
    std::set_new_handler(endWithoutMemory);
    const auto roots = nextOf(rootsOf);
    if (!roots)
        return EXIT_FAILURE;
    RootOpener opener(*roots);
    // Never destroyed: a guarded process can end no other, and exiftool ends with this one.
    auto *const exifTool
        = roots->exifToolMiB == 0 ? nullptr : startedExifTool(static_cast<int>(roots->exifToolMiB));
    setUpLog(static_cast<quint32>(std::strtoul(argv[2], nullptr, 10)));
    const QCoreApplication application(argc, argv);
    useUtf8CharacterType();
    RecordBuilder::setupLibraries();
    RootOpener::Opened opened = opener.take();
    openOwnPaths(opened.descriptors);
    const quint32 parts = raiseGuardFor(*roots, std::move(opened.descriptors));
    if (!writeAll(frameOf(Greeting{.guardParts = parts,
                                   .reached = std::move(opened.reached),
                                   .exifTool = exifTool ? exifTool->pid() : 0})))
        return EXIT_FAILURE;
    work(roots->through, exifTool);
    std::_Exit(EXIT_SUCCESS);
} catch (...) {
    // The parent sees a reader that does not greet.
    return EXIT_FAILURE;
}
