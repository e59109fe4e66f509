// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Log.h"
#include "process/Bytes.h"
#include "process/Frames.h"
#include "process/JobRunner.h"
#include "process/RecordBytes.h"

#include <QDeadlineTimer>

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <optional>

namespace quorvin {

namespace {

constexpr int kCpuCheckInterval = 250; ///< milliseconds
constexpr int kStartTries = 2;
constexpr qsizetype kHeader = sizeof(quint32); ///< of a frame
constexpr std::size_t kReadChunk = 65'536;

const QString kCrashed = QStringLiteral("stopped: the reader crashed");
const QString kNotStarted = QStringLiteral("the reader can not be started");
const QString kStopped = QStringLiteral("stopped");
const QString kTookTooLong = QStringLiteral("stopped: took too long");
const QString kTooMuchMemory = QStringLiteral("stopped: used too much memory");

/// A descriptor that becomes readable when a stop is asked for.
class StopSignal {
public:
    StopSignal() : _descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) { }
    ~StopSignal() { ::close(_descriptor); }
    StopSignal(const StopSignal &) = delete;
    StopSignal &operator=(const StopSignal &) = delete;

    int descriptor() const { return _descriptor; }
    void operator()() const { ::eventfd_write(_descriptor, 1); }

private:
    int _descriptor;
};

class ReaderRunner final : public JobRunner {
public:
    explicit ReaderRunner(ReaderLimits limits) : _limits(std::move(limits)) { }

    void begin(const Job &job) override;
    bool await(const std::stop_token &stop) override;
    JobResult take(const std::stop_token &stop) override;

    /// Starts a reader if there is none.
    std::optional<quint32> guardParts();

private:
    enum class Wait {
        Ready,
        Stopped,
        Failed, ///< the reader is gone
        Untouched, ///< it is gone, and never began with the last job
    };

    void ensureReader();
    std::optional<quint32> readHello();
    void handOver();
    bool send();
    /// Waits until the buffer holds so many bytes.
    Wait waitForBytes(qsizetype count, const StopSignal *stop);
    Wait waitReadable(const StopSignal *stop);
    bool readSome();
    std::optional<quint32> frameLength() const;
    QByteArray takeFrame();
    JobResult resultOf(const QByteArray &frame);
    JobResult endedWith(const QString &reason);
    void endReader(const QString &reason);

    ReaderLimits _limits;
    std::unique_ptr<ReaderProcess> _reader;
    RecordDecoder _decoder;
    std::optional<quint32> _guardParts;
    Job _job; ///< the last one handed over
    QString _source; ///< of the raw reports that the reader makes: these leave options behind in its process
    QByteArray _received;
    bool _hasResult = false; ///< the awaited job's, which has not been taken
    bool _mustBeginAgain = false; ///< the job handed over did not reach the reader
    QString _begunFailure; ///< why the job handed over has failed already; "" when it has not
    QString _awaitedFailure; ///< the same for the job that was waited for
    QString _lastReason; ///< why the last reader was ended
    QDeadlineTimer _deadline;
    qint64 _cpuAtStart = 0;
};

void ReaderRunner::begin(const Job &job)
{
    _job = job;
    _begunFailure.clear();
    // A reader whose last result has not been taken is left alone; if it takes no more, another one gets the
    // job.
    if (_hasResult)
        _mustBeginAgain = !_reader || _source != job.source || !send();
    else
        handOver();
}

/// A reader that died while it had nothing to do is replaced without a word.
void ReaderRunner::handOver()
{
    _mustBeginAgain = false;
    for (int i = 0; i < kStartTries; ++i) {
        ensureReader();
        if (_reader && send())
            return;
        _reader.reset();
    }
    _begunFailure = kNotStarted;
}

void ReaderRunner::ensureReader()
{
    if (_reader && _source == _job.source)
        return;
    _decoder = {};
    _received.clear();
    _source = _job.source;
    _reader = ReaderProcess::start(_limits);
    _guardParts = _reader ? readHello() : std::nullopt;
    if (!_guardParts)
        _reader.reset();
}

std::optional<quint32> ReaderRunner::readHello()
{
    _deadline.setRemainingTime(qint64{_limits.wallSeconds} * 1000);
    _cpuAtStart = 0;
    if (waitForBytes(kHeader, nullptr) != Wait::Ready)
        return std::nullopt;
    const qsizetype length = *frameLength();
    if (length > qsizetype{kMostRequestBytes} || waitForBytes(kHeader + length, nullptr) != Wait::Ready)
        return std::nullopt;
    return guardPartsOfHello(takeFrame());
}

std::optional<quint32> ReaderRunner::guardParts()
{
    ensureReader();
    return _guardParts;
}

bool ReaderRunner::send()
{
    _deadline.setRemainingTime(qint64{_limits.wallSeconds} * 1000);
    _cpuAtStart = _reader->cpuTime();
    // A request always fits into the socket; a reader that lets it fill up is no reader.
    _reader->countJob();
    const QByteArray frame = requestFrame(_job);
    return ::send(_reader->socket(), frame.constData(), static_cast<std::size_t>(frame.size()),
                  MSG_NOSIGNAL | MSG_DONTWAIT)
        == frame.size();
}

bool ReaderRunner::await(const std::stop_token &stop)
{
    // The reader may have been lost over the result of the job before; this one is innocent.
    if (_mustBeginAgain)
        _reader.reset();
    if (!_reader && _begunFailure.isEmpty())
        handOver();
    _awaitedFailure = _begunFailure;
    if (!_awaitedFailure.isEmpty())
        return !stop.stop_requested();
    const StopSignal signal;
    const std::stop_callback tell(stop, std::cref(signal));
    Wait wait = waitForBytes(1, &signal);
    for (int i = 0; i < kStartTries && wait == Wait::Untouched; ++i) {
        handOver();
        wait = _reader ? waitForBytes(1, &signal) : Wait::Failed;
    }
    if (wait == Wait::Stopped)
        _reader.reset();
    if (wait == Wait::Failed || wait == Wait::Untouched)
        _awaitedFailure = _lastReason;
    _hasResult = wait == Wait::Ready;
    return wait != Wait::Stopped;
}

JobResult ReaderRunner::take(const std::stop_token &stop)
{
    _hasResult = false;
    if (!_awaitedFailure.isEmpty())
        return tl::unexpected(_awaitedFailure);
    if (!_received.startsWith(kDoneMark))
        return endedWith(kCrashed);
    _received.remove(0, 1);
    const StopSignal signal;
    const std::stop_callback tell(stop, std::cref(signal));
    Wait wait = waitForBytes(kHeader, &signal);
    const quint32 length = frameLength().value_or(0);
    if (wait == Wait::Ready && (length == 0 || length > kMostReplyBytes))
        return endedWith(kCrashed);
    if (wait == Wait::Ready)
        wait = waitForBytes(kHeader + length, &signal);
    if (wait == Wait::Stopped)
        return endedWith(kStopped);
    return wait == Wait::Ready ? resultOf(takeFrame()) : tl::unexpected(_lastReason);
}

JobResult ReaderRunner::resultOf(const QByteArray &frame)
{
    const auto kind = static_cast<ReplyKind>(frame.front());
    const QByteArrayView content = QByteArrayView(frame).sliced(1);
    if (kind == ReplyKind::Failure)
        return tl::unexpected(QString::fromUtf8(content));
    if (kind == ReplyKind::Report)
        return JobAnswer{nullptr, QString::fromUtf8(content)};
    const bool isRecord = kind == ReplyKind::Record && content.size() <= kMostRecordBytes;
    auto record = isRecord ? _decoder.decode(content) : std::nullopt;
    if (!record)
        return endedWith(kCrashed);
    return JobAnswer{std::make_shared<const QuorvinData>(std::move(*record)), {}};
}

JobResult ReaderRunner::endedWith(const QString &reason)
{
    endReader(reason);
    return tl::unexpected(_lastReason);
}

ReaderRunner::Wait ReaderRunner::waitForBytes(qsizetype count, const StopSignal *stop)
{
    while (_received.size() < count) {
        const Wait wait = waitReadable(stop);
        if (wait != Wait::Ready)
            return wait;
        if (!readSome()) {
            const bool wasTaken = _reader->hasTakenLastJob();
            endReader(kCrashed);
            return wasTaken ? Wait::Failed : Wait::Untouched;
        }
    }
    return Wait::Ready;
}

ReaderRunner::Wait ReaderRunner::waitReadable(const StopSignal *stop)
{
    std::array<pollfd, 2> ends{pollfd{_reader->socket(), POLLIN, 0},
                               pollfd{stop ? stop->descriptor() : -1, POLLIN, 0}};
    // Also for a reader that always has one more byte to send.
    while (!_deadline.hasExpired()) {
        const auto patience
            = static_cast<int>(std::min<qint64>(_deadline.remainingTime(), kCpuCheckInterval));
        const int ready = ::poll(ends.data(), ends.size(), std::max(patience, 1));
        if (ready < 0 && errno != EINTR)
            break;
        if (ends[1].revents != 0)
            return Wait::Stopped;
        if (ends[0].revents != 0)
            return Wait::Ready;
        if (_reader->cpuTime() - _cpuAtStart > qint64{_limits.cpuSeconds} * 1000)
            break;
    }
    endReader(kTookTooLong);
    return Wait::Failed;
}

bool ReaderRunner::readSome()
{
    std::array<char, kReadChunk> chunk;
    const ssize_t count = ::recv(_reader->socket(), chunk.data(), chunk.size(), MSG_DONTWAIT);
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return true;
    if (count <= 0)
        return false;
    _received.append(chunk.data(), count);
    return true;
}

std::optional<quint32> ReaderRunner::frameLength() const
{
    if (_received.size() < qsizetype{sizeof(quint32)})
        return std::nullopt;
    quint32 length = 0;
    std::memcpy(&length, _received.constData(), sizeof length);
    return length;
}

QByteArray ReaderRunner::takeFrame()
{
    const qsizetype length = *frameLength();
    QByteArray content = _received.mid(sizeof(quint32), length);
    _received.remove(0, qsizetype{sizeof(quint32)} + length);
    return content;
}

/// A reader that ended for want of memory said so by its status.
void ReaderRunner::endReader(const QString &reason)
{
    const int status = _reader ? _reader->kill() : 0;
    const bool lacksMemory = WIFEXITED(status) && WEXITSTATUS(status) == kOutOfMemoryStatus;
    _lastReason = lacksMemory ? kTooMuchMemory : reason;
    _reader.reset();
    _received.clear();
    qCInfo(lcQuorvin).noquote() << "Reader" << _lastReason;
}

} // namespace

std::unique_ptr<JobRunner> makeReaderRunner(const ReaderLimits &limits)
{
    return std::make_unique<ReaderRunner>(limits);
}

std::optional<quint32> guardPartsInForce()
{
    return ReaderRunner({}).guardParts();
}

} // namespace quorvin
