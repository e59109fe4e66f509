// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/TerminalText.h"
#include "platform/StandardStreams.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QString>
#include <QStringList>

#include <cstddef>

namespace quorvin::cli {

/// The two ends of the terminal: what was asked for on standard output, and errors and progress on standard
/// error. One thread.
class Console {
public:
    explicit Console(StandardStreams streams);

    /// For whole documents; a terminal is not made to obey what stands in them. What is written may wait in a
    /// buffer until `finish`. Call `beginOutput` before each piece.
    QIODevice &output() { return deviceFor(_output, _outputText, _outputIsTerminal); }
    QIODevice &errors() { return deviceFor(_errors, _errorText, _errorsAreTerminal); }
    /// To standard output.
    void write(const QByteArray &bytes);
    /// Ends the output; a document that does not end in a line feed gets one when a person reads it. False,
    /// with an error line, when not all could be written.
    bool finish(bool endsInLineFeed);

    /// "quorvin-cli: PATH: reason". Control characters are escaped, so that an error is always one line.
    void complain(const QString &path, const QString &reason);
    void complain(const QString &message);
    /// Of a wrong call: what is wrong, the lines that show it, and where to look.
    void refuse(const QString &problem, const QStringList &lines = {});

    /// Progress is shown from the second file on, and only on a terminal that can rewrite a line.
    void startProgress(std::size_t total);
    void progressTo(std::size_t done);
    /// Before anything is written to one of the devices: where that is a terminal, progress makes way for
    /// text.
    void beginOutput(const QIODevice &device);
    void endProgress();

private:
    static QIODevice &deviceFor(QFile &file, TerminalText &text, bool isTerminal)
    {
        return isTerminal ? static_cast<QIODevice &>(text) : file;
    }
    void clearProgressLine();
    void writeError(const QByteArray &bytes);
    int progressWidth() const;

    StandardStreams _streams;
    QFile _output;
    QFile _errors;
    TerminalText _outputText;
    TerminalText _errorText;
    std::size_t _total = 0;
    bool _showsProgress = false;
    bool _outputIsTerminal = false;
    bool _errorsAreTerminal = false;
    bool _hasProgressLine = false;
    qint64 _lastShown = 0;
    QElapsedTimer _clock;
};

/// The line of progress, without its ends: bar, done of total, files a second, time left. Where `width`
/// columns are too few, the bar is shorter, then missing, then the line is cut.
QString progressLine(std::size_t done, std::size_t total, double seconds, int width);

} // namespace quorvin::cli
