// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/FailureKind.h"
#include "process/Frames.h"
#include "process/JobRunner.h"
#include "process/ReaderProcess.h"
#include "process/RecordBytes.h"
#include "process/StopSignal.h"

#include <QDeadlineTimer>

#include <sys/types.h>

#include <memory>
#include <stop_token>
#include <string>

namespace quorvin {

/// A reader that has greeted its parent, and the frames between the two. Jobs are done in the order in which
/// they are sent; the next may be sent once the last has been waited for, before its result is taken. A
/// reader that ends, exceeds a limit, says what it may not, or is waited for when a stop is asked for is
/// ended, and the connection lost. One thread.
class ReaderConnection {
public:
    /// Starts a reader for files in `roots` and waits for its greeting. `program` as in `ReaderProcess`.
    static Expected<std::unique_ptr<ReaderConnection>>
    open(const std::string &program, const ReaderRoots &roots, const std::stop_token &stop);

    ReaderConnection(const ReaderConnection &) = delete;
    ReaderConnection &operator=(const ReaderConnection &) = delete;
    ~ReaderConnection() = default;

    /// Its first words, from before it read any file.
    const Greeting &greeting() const { return _greeting; }
    /// False when the reader takes no more. What it owes can still be taken.
    bool send(const Job &job);
    /// Waits until the last job sent has been worked on. `watch` as `JobRunner` says it.
    Expected<void> awaitDone(const std::stop_token &stop, const JobWatch &watch = {});
    /// What came of the job that was waited for last. Once for each.
    JobResult takeResult(const std::stop_token &stop);

    bool isLost() const { return !_reader; }
    /// Whether the reader was lost by no fault of the last job sent: it had not begun with it, or spoke of
    /// another one.
    bool isLastJobInnocent() const { return _isLastJobInnocent; }
    /// Whether the reader is given up as it may not read the file of the last job sent.
    bool isLastJobOutside() const { return _isLastJobOutside; }

private:
    struct Sent {
        quint32 number = 0;
        Job job;
    };

    explicit ReaderConnection(std::unique_ptr<ReaderProcess> reader) : _reader(std::move(reader)) { }

    bool sendFrame(const QByteArray &frame);

    void startLimits();
    /// False for a step that leads nowhere.
    bool advance(const JobProgress &step);
    /// Asks, once in a job that takes long.
    bool mayGoOn();
    /// The next message that is neither progress nor for the log.
    Expected<ReaderMessage> receive(const std::stop_token &stop);
    Expected<ReaderMessage> receiveAny(const std::stop_token &stop);
    /// Waits until so many bytes have come.
    Expected<void> waitForBytes(qsizetype count, const std::stop_token &stop);
    /// Waits until there is something to read, or a stop.
    Expected<void> waitReadable();
    /// Takes what is there: its bytes, 0 at the end, less when there is nothing yet.
    ssize_t readSome();
    template <typename Number>
    Number peek(qsizetype offset) const;
    std::optional<JobAnswer> answerOf(const EncodedRecord &record);
    static std::optional<JobAnswer> answerOf(const EncodedReport &report);
    static std::optional<JobAnswer> answerOf(const EncodedRemoval &removal) { return removal.result; }
    static std::optional<JobAnswer> answerOf(const FilesSaved &saved);
    static std::optional<JobAnswer> answerOf(const EncodedPicture &picture);
    template <typename Message>
    static std::optional<JobAnswer> answerOf(const Message &)
    {
        return std::nullopt;
    }
    /// Ends the reader and gives the reason.
    tl::unexpected<Error> lose(FailureKind kind);

    std::unique_ptr<ReaderProcess> _reader; ///< null when lost
    StopSignal _stopSignal;
    RecordDecoder _decoder;
    QByteArray _received;
    Greeting _greeting;
    Sent _sent; ///< the last one
    Sent _awaited; ///< the one whose result comes next
    bool _isLastJobInnocent = false;
    bool _isLastJobOutside = false;
    QDeadlineTimer _deadline;
    qint64 _cpuAtStart = 0; ///< of the last job, in milliseconds
    qint64 _cpuAtStep = 0; ///< of it, or of the last time that it advanced
    quint64 _digested = 0; ///< bytes of its file
    JobWatch _watch; ///< of the job that is awaited; without `whenSlow` once it was asked
};

} // namespace quorvin
