// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "process/ExifToolStart.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QList>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace quorvin {

struct ExifToolLimits {
    int memoryMiB = 2048;
    /// For an answer; then the process is ended. A reader's parent sees to the time of its jobs itself.
    std::chrono::seconds patience = std::chrono::hours(24);
};

/// An exiftool that stays open and answers one question after the other. It goes with the object, and with
/// the thread that made it. One thread.
class oExifToolStayOpenProcess {
public:
    /// Gets a piece of an answer; false gives the rest of it up.
    using Sink = std::function<bool(QByteArrayView piece)>;

    /// Ready for use at once. "exiftool is not installed" is an error of its own.
    static Expected<std::unique_ptr<oExifToolStayOpenProcess>> init(const ExifToolLimits &limits);

    explicit oExifToolStayOpenProcess(const StartedExifTool &started, const ExifToolLimits &limits);
    ~oExifToolStayOpenProcess();
    oExifToolStayOpenProcess(const oExifToolStayOpenProcess &) = delete;
    oExifToolStayOpenProcess &operator=(const oExifToolStayOpenProcess &) = delete;

    /// False once it has ended, or owes the rest of an answer that nobody waits for: another one is needed.
    bool isRunning() const { return _isRunning; }
    pid_t pid() const { return _started.pid; }

    /// What exiftool prints with these arguments, in this order; a path is to be absolute. An answer of
    /// nothing is an error: the first that exiftool complains of.
    Expected<QByteArray> outputWithArguments(const QList<QByteArray> &arguments);
    /// The same, but hands the answer on as it comes, however long. An answer of nothing is none to it.
    Expected<void> outputWithArguments(const QList<QByteArray> &arguments, const Sink &sink);
    /// What exiftool complained of over its last answer; cut at a few lines.
    const QByteArray &errors() const { return _errors; }

    /// Ends the process.
    void stopProcess();

private:
    bool ask(const QList<QByteArray> &arguments);
    Expected<void> takeAnswer(const Sink &sink);
    Expected<void> waitReadable(bool &output, bool &errors) const;
    void readErrors();
    tl::unexpected<Error> give(const Error &error);
    tl::unexpected<Error> ended();

    StartedExifTool _started;
    ExifToolLimits _limits;
    int _handle; ///< a descriptor of the process
    bool _isRunning = true;
    quint64 _number; ///< of the last question; no file can guess it
    QByteArray _end; ///< the mark behind an answer
    QByteArray _errors;
    bool _hasAllErrors = false;
    QDeadlineTimer _deadline;
};

} // namespace quorvin
