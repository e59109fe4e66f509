// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/ReaderRunner.h"

#include "process/ReaderConnection.h"

#include <utility>

namespace quorvin {

namespace {

constexpr int kStarts = 3; ///< that may fail one after the other
constexpr int kTries = 3; ///< of a job whose reader is lost by no fault of its own

/// Which reader serves which job, and what is begun again. What the reader and its parent say to each other
/// is the connection's affair.
class ReaderRunner final : public JobRunner {
public:
    ReaderRunner(std::shared_ptr<RootSet> roots, std::string program, QString writable = {})
        : _roots(std::move(roots)), _program(std::move(program)), _writable(std::move(writable))
    {
    }

    void begin(const Job &job) override;
    bool await(const std::stop_token &stop) override;
    JobResult take(const std::stop_token &stop) override;

private:
    bool readerServes(const Job &job) const;
    Expected<void> handOver(const std::stop_token &stop);
    Expected<void> startReader(const QString &through, const std::stop_token &stop);
    ReaderRoots rootsWith(const QString &through);

    std::shared_ptr<RootSet> _roots;
    std::string _program;
    QString _writable; ///< folder of a writer
    std::unique_ptr<ReaderConnection> _reader;
    QString _libraryState; ///< of the reader
    ReadableRoots _readable; ///< by the reader
    Job _job; ///< the last one begun
    bool _isSent = false; ///< to this reader
    bool _hasExifTool = false; ///< beside the reader
    QString _target; ///< the folder that the reader may write into
    int _failedStarts = 0; ///< since the last reader that greeted
    Error _startError;
    Expected<void> _awaited; ///< of the job that was waited for: why it has failed already
};

void ReaderRunner::begin(const Job &job)
{
    _job = job;
    // A reader that doesn't take it may still owe the last result; so nothing is replaced yet.
    _isSent = readerServes(job) && _reader->send(job);
}

bool ReaderRunner::await(const std::stop_token &stop)
{
    for (int i = 0; i < kTries; ++i) {
        _awaited = handOver(stop).and_then([&] { return _reader->awaitDone(stop, watch()); });
        if (_awaited || stop.stop_requested() || !_reader || !_reader->isLastJobInnocent())
            break;
    }
    if (stop.stop_requested())
        _reader.reset();
    return !stop.stop_requested();
}

JobResult ReaderRunner::take(const std::stop_token &stop)
{
    if (!_awaited)
        return tl::unexpected(_awaited.error());
    return _reader->takeResult(stop);
}

bool ReaderRunner::readerServes(const Job &job) const
{
    return _reader && !_reader->isLost() && _libraryState == libraryStateOf(job.request)
        && _target == targetOf(job.request) && (_hasExifTool || !usesExifTool(job.request))
        && _readable.cover(pathOf(job.request));
}

Expected<void> ReaderRunner::handOver(const std::stop_token &stop)
{
    // The reader may have been lost over the result of the job before; this one is innocent.
    if (_isSent && !_reader->isLost())
        return {};
    const bool isOutside = _reader && _reader->isLastJobOutside();
    _reader.reset();
    if (auto started = startReader(isOutside ? pathOf(_job.request) : QString(), stop); !started)
        return started;
    _libraryState = libraryStateOf(_job.request);
    _hasExifTool = usesExifTool(_job.request);
    _target = targetOf(_job.request);
    _isSent = _reader->send(_job);
    return {};
}

/// What could not be started for one file is not tried again for each of the others.
Expected<void> ReaderRunner::startReader(const QString &through, const std::stop_token &stop)
{
    const ReaderRoots roots = rootsWith(through);
    for (; _failedStarts < kStarts; ++_failedStarts) {
        auto opened = ReaderConnection::open(_program, roots, stop);
        if (opened) {
            _reader = std::move(*opened);
            _roots->add({_reader->greeting().reached.begin(), _reader->greeting().reached.end()});
            _failedStarts = 0;
            return {};
        }
        _startError = opened.error();
        if (stop.stop_requested())
            break;
    }
    return tl::unexpected(_startError);
}

ReaderRoots ReaderRunner::rootsWith(const QString &through)
{
    const QString path = pathOf(_job.request);
    if (!_roots->roots().cover(path))
        _roots->add({path});
    _readable = _roots->roots();
    const int memoryMiB = usesExifTool(_job.request) ? _job.limits.memoryMiB : 0;
    return {{_readable.paths().begin(), _readable.paths().end()},
            through,
            _writable.isEmpty() ? targetOf(_job.request) : _writable,
            static_cast<quint32>(memoryMiB)};
}

} // namespace

std::unique_ptr<JobRunner> makeReaderRunner(std::shared_ptr<RootSet> roots, const std::string &program)
{
    return std::make_unique<ReaderRunner>(roots ? std::move(roots) : std::make_shared<RootSet>(), program);
}

std::unique_ptr<JobRunner> makeWriterRunner(const QString &folder, const std::string &program)
{
    // One of its own for each file would be started otherwise.
    const auto everything = std::make_shared<RootSet>(QStringList(QStringLiteral("/")));
    return std::make_unique<ReaderRunner>(everything, program, folder);
}

Expected<quint32> guardPartsInForce()
{
    return ReaderConnection::open({}, {}, {}).map([](const auto &reader) {
        return reader->greeting().guardParts;
    });
}

} // namespace quorvin
