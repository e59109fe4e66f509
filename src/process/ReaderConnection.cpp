// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/ReaderConnection.h"

#include "model/Log.h"
#include "process/Guard.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <mutex>

namespace quorvin {

namespace {

constexpr int kCpuCheckInterval = 250; ///< milliseconds
constexpr int kGreetingPatience = 10'000; ///< milliseconds
constexpr qsizetype kLength = sizeof(quint32); ///< of a frame, ahead of its content
constexpr std::size_t kReadChunk = 65'536;

/// The number of the job that a message is about; 0 for none.
quint32 jobOf(const ReaderMessage &message)
{
    return std::visit(
        [](const auto &kind) -> quint32 {
            if constexpr (requires { kind.job; })
                return kind.job;
            else
                return 0;
        },
        message);
}

void log(const LogLine &line)
{
    if (line.isOfLibrary)
        qCDebug(lcLibraries).noquote() << line.text;
    else
        qCInfo(lcQuorvin).noquote() << line.text;
}

} // namespace

Expected<std::unique_ptr<ReaderConnection>>
ReaderConnection::open(const std::string &program, const ReaderRoots &roots, const std::stop_token &stop)
{
    auto started = ReaderProcess::start(program);
    if (!started)
        return failure(FailureKind::NoReader);
    std::unique_ptr<ReaderConnection> connection(new ReaderConnection(std::move(*started)));
    connection->_deadline.setRemainingTime(kGreetingPatience);
    connection->sendFrame(frameOf(roots));
    const auto first = connection->receive(stop);
    const auto *greeting = first ? std::get_if<Greeting>(&*first) : nullptr;
    if (!greeting)
        return stop.stop_requested() ? failure(FailureKind::Stopped) : failure(FailureKind::NoReader);
    connection->_greeting = *greeting;
    if (greeting->exifTool > 0)
        connection->_reader->setCompanion(greeting->exifTool);
    static std::once_flag once;
    if (const QString missing = missingGuardNames(greeting->guardParts); !missing.isEmpty())
        std::call_once(once, [&] { qCInfo(lcQuorvin).noquote() << "Readers run without" << missing; });
    return connection;
}

bool ReaderConnection::send(const Job &job)
{
    if (isLost())
        return false;
    _sent = {_sent.number + 1, job};
    _reader->limitMemory(job.limits.memoryMiB);
    startLimits();
    _cpuAtStart = _cpuAtStep;
    _digested = 0;
    return sendFrame(frameOf(JobOrder{_sent.number, job.request}));
}

/// What a parent says always fits into the socket; a reader that lets it fill up is no reader.
bool ReaderConnection::sendFrame(const QByteArray &frame)
{
    return ::send(_reader->socket(), frame.constData(), static_cast<std::size_t>(frame.size()),
                  MSG_NOSIGNAL | MSG_DONTWAIT)
        == frame.size();
}

void ReaderConnection::startLimits()
{
    _deadline.setRemainingTime(qint64{_sent.job.limits.wallSeconds} * 1000);
    _cpuAtStep = _reader->cpuTime();
}

bool ReaderConnection::advance(const JobProgress &step)
{
    const auto *request = std::get_if<RecordRequest>(&_sent.job.request);
    if (!request || !request->options.computeFileHashes || step.job != _sent.number
        || step.progress.done <= _digested)
        return false;
    _digested = step.progress.done;
    startLimits();
    if (_watch.whenAdvanced)
        _watch.whenAdvanced(step.progress);
    return true;
}

bool ReaderConnection::mayGoOn()
{
    if (!_watch.whenSlow || _reader->cpuTime() - _cpuAtStart <= kSlowJob.count())
        return true;
    return std::exchange(_watch.whenSlow, {})(_digested > 0);
}

Expected<void> ReaderConnection::awaitDone(const std::stop_token &stop, const JobWatch &watch)
{
    _watch = watch;
    const auto message = receive(stop);
    _watch = {};
    if (!message)
        return tl::unexpected(message.error());
    const bool isOfThisJob = jobOf(*message) == _sent.number;
    if (isOfThisJob && std::holds_alternative<JobOutside>(*message)) {
        _isLastJobInnocent = _isLastJobOutside = true;
        _reader.reset();
        return posixFailure(EACCES);
    }
    if (!isOfThisJob || !std::holds_alternative<JobDone>(*message)) {
        _isLastJobInnocent = !isOfThisJob;
        return lose(FailureKind::ReaderCrashed);
    }
    _awaited = _sent;
    return {};
}

JobResult ReaderConnection::takeResult(const std::stop_token &stop)
{
    auto message = receive(stop);
    if (!message)
        return tl::unexpected(message.error());
    const bool isOfThisJob = jobOf(*message) == _awaited.number;
    const auto *failed = std::get_if<JobFailed>(&*message);
    if (failed && isOfThisJob)
        return tl::unexpected(failed->error);
    auto answer = std::visit([this](const auto &kind) { return answerOf(kind); }, *message);
    if (!answer || !isOfThisJob || answer->index() != _awaited.job.request.index())
        return lose(FailureKind::ReaderCrashed);
    return *std::move(answer);
}

std::optional<JobAnswer> ReaderConnection::answerOf(const EncodedRecord &record)
{
    auto contents = _decoder.decode(record.record);
    const auto *request = std::get_if<RecordRequest>(&_awaited.job.request);
    if (!contents || !request)
        return std::nullopt;
    // Whatever the reader calls it.
    contents->filename = request->path;
    return std::make_shared<const QuorvinData>(std::move(*contents));
}

std::optional<JobAnswer> ReaderConnection::answerOf(const EncodedReport &report)
{
    return Report{QString::fromUtf8(report.text)};
}

std::optional<JobAnswer> ReaderConnection::answerOf(const FilesSaved &saved)
{
    return saved.files;
}

std::optional<JobAnswer> ReaderConnection::answerOf(const EncodedPicture &picture)
{
    return picture.picture;
}

Expected<ReaderMessage> ReaderConnection::receive(const std::stop_token &stop)
{
    for (;;) {
        auto message = receiveAny(stop);
        if (!message)
            return message;
        if (const auto *line = std::get_if<LogLine>(&*message)) {
            log(*line);
        } else if (const auto *step = std::get_if<JobProgress>(&*message)) {
            if (!advance(*step))
                return lose(FailureKind::ReaderCrashed);
            if (!mayGoOn())
                return lose(FailureKind::SetAside);
        } else {
            return message;
        }
    }
}

Expected<ReaderMessage> ReaderConnection::receiveAny(const std::stop_token &stop)
{
    if (isLost())
        return failure(FailureKind::ReaderCrashed);
    if (auto came = waitForBytes(kLength + 1, stop); !came)
        return tl::unexpected(came.error());
    const auto length = peek<quint32>(0);
    if (length == 0 || length > mostBytesOfMessage(peek<quint8>(kLength)))
        return lose(FailureKind::ReaderCrashed);
    if (auto came = waitForBytes(kLength + qsizetype{length}, stop); !came)
        return tl::unexpected(came.error());
    auto message = messageOf(QByteArrayView(_received).sliced(kLength, length));
    _received.remove(0, kLength + qsizetype{length});
    if (!message)
        return lose(FailureKind::ReaderCrashed);
    return *std::move(message);
}

Expected<void> ReaderConnection::waitForBytes(qsizetype count, const std::stop_token &stop)
{
    if (_received.size() >= count)
        return {};
    _stopSignal.clear();
    const std::stop_callback tell(stop, [this] { _stopSignal.raise(); });
    while (_received.size() < count) {
        if (stop.stop_requested())
            return lose(FailureKind::Stopped);
        // Also for a reader that always has one more byte to send.
        if (_deadline.hasExpired())
            return lose(FailureKind::TookTooLong);
        const ssize_t came = readSome();
        if (came < 0) {
            if (auto readable = waitReadable(); !readable)
                return readable;
        }
        if (came == 0) {
            _isLastJobInnocent = !_reader->hasTaken(_sent.number);
            return lose(FailureKind::ReaderCrashed);
        }
    }
    return {};
}

Expected<void> ReaderConnection::waitReadable()
{
    std::array<pollfd, 2> ends{pollfd{_reader->socket(), POLLIN, 0},
                               pollfd{_stopSignal.descriptor(), POLLIN, 0}};
    const qint64 mostCpu = qint64{_sent.job.limits.cpuSeconds} * 1000;
    while (!_deadline.hasExpired()) {
        const auto patience
            = static_cast<int>(std::min<qint64>(_deadline.remainingTime(), kCpuCheckInterval));
        const int ready = ::poll(ends.data(), ends.size(), std::max(patience, 1));
        if (ready < 0 && errno != EINTR)
            break;
        if (ready > 0)
            return {};
        if (_reader->cpuTime() - _cpuAtStep > mostCpu)
            break;
        if (!mayGoOn())
            return lose(FailureKind::SetAside);
    }
    return lose(FailureKind::TookTooLong);
}

ssize_t ReaderConnection::readSome()
{
    std::array<char, kReadChunk> chunk;
    const ssize_t count = ::recv(_reader->socket(), chunk.data(), chunk.size(), MSG_DONTWAIT);
    if (count < 0)
        return errno == EINTR || errno == EAGAIN ? -1 : 0;
    _received.append(chunk.data(), count);
    return count;
}

template <typename Number>
Number ReaderConnection::peek(qsizetype offset) const
{
    Number value{};
    std::memcpy(&value, _received.constData() + offset, sizeof value);
    return value;
}

/// A reader that ended for want of memory said so by its status.
tl::unexpected<Error> ReaderConnection::lose(FailureKind kind)
{
    const auto status = _reader->kill();
    const bool lacksMemory = status && WIFEXITED(*status) && WEXITSTATUS(*status) == kOutOfMemoryStatus;
    auto lost = failure(lacksMemory ? FailureKind::TooMuchMemory : kind);
    _reader.reset();
    qCInfo(lcQuorvin).noquote() << "Reader" << lost.value().description;
    return lost;
}

} // namespace quorvin
