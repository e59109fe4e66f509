// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/StandardStreams.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QString>

#include <cstddef>

namespace quorvin::cli {

/// The two ends of the terminal: what was asked for on standard output, and errors and progress on standard
/// error. One thread.
class Console {
public:
    explicit Console(StandardStreams streams);

    /// What is written may wait in a buffer until `finish`.
    QFile &output() { return _output; }
    void write(const QByteArray &bytes);
    /// Ends the output; a document that does not end in a line feed gets one when a person reads it. False,
    /// with an error line, when not all could be written.
    bool finish(bool endsInLineFeed);

    /// "quorvin-cli: PATH: reason". Control characters are escaped, so that an error is always one line.
    void complain(const QString &path, const QString &reason);
    void complain(const QString &message);

    /// Progress is shown from the second file on, and only on a terminal.
    void startProgress(std::size_t total);
    void progressTo(std::size_t done);
    /// Before anything is written to `output` itself: where both ends are one terminal, progress makes way
    /// for text.
    void beginOutput();
    void endProgress();

private:
    void clearProgressLine();
    void writeError(const QByteArray &bytes);

    StandardStreams _streams;
    QFile _output;
    QFile _errors;
    std::size_t _total = 0;
    bool _showsProgress = false;
    bool _outputIsTerminal = false;
    bool _hasProgressLine = false;
    qint64 _lastShown = 0;
    QElapsedTimer _clock;
};

/// The line of progress, without its ends: bar, done of total, files a second, time left.
QString progressLine(std::size_t done, std::size_t total, double seconds);

} // namespace quorvin::cli
