// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Console.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>

namespace quorvin::cli {

namespace {

constexpr int kWidestBar = 24;
constexpr int kNarrowestBar = 4;
constexpr int kUsualWidth = 80; ///< of a terminal that does not tell
constexpr qint64 kProgressInterval = 100; ///< milliseconds
constexpr char kEraseLine[] = "\r\033[K";

QString escaped(const QString &path)
{
    QString text;
    for (const QChar unit : path) {
        if (unit == u'\n')
            text += QLatin1String("\\n");
        else if (unit.category() == QChar::Other_Control)
            text += QString::asprintf("\\%03o", unit.unicode());
        else
            text += unit;
    }
    return text;
}

QString clockTime(double seconds)
{
    const auto whole = static_cast<qint64>(std::ceil(seconds));
    return QString::asprintf("%02lld:%02lld:%02lld", whole / 3600, whole % 3600 / 60, whole % 60);
}

} // namespace

Console::Console(StandardStreams streams) : _streams(streams), _outputText(_output), _errorText(_errors)
{
    _output.open(_streams.output, QIODevice::WriteOnly);
    _errors.open(_streams.errors, QIODevice::WriteOnly | QIODevice::Unbuffered);
    _outputIsTerminal = ::isatty(_streams.output);
    _errorsAreTerminal = ::isatty(_streams.errors);
    _clock.start();
}

void Console::write(const QByteArray &bytes)
{
    beginOutput(output());
    output().write(bytes);
}

bool Console::finish(bool endsInLineFeed)
{
    endProgress();
    if (!endsInLineFeed && _outputIsTerminal)
        _output.write("\n");
    if (_output.flush() && _output.error() == QFileDevice::NoError)
        return true;
    complain(QLatin1String("standard output: ") + _output.errorString());
    return false;
}

void Console::complain(const QString &path, const QString &reason)
{
    complain(path + QLatin1String(": ") + reason);
}

void Console::complain(const QString &message)
{
    clearProgressLine();
    writeError("quorvin-cli: " + escaped(message).toUtf8() + '\n');
}

void Console::refuse(const QString &problem, const QStringList &lines)
{
    complain(problem);
    for (const QString &line : lines)
        writeError("    " + escaped(line).toUtf8() + '\n');
    complain(QStringLiteral("try 'quorvin-cli --help'"));
}

void Console::startProgress(std::size_t total)
{
    _total = total;
    _showsProgress = total >= 2 && _errorsAreTerminal && qgetenv("TERM") != "dumb";
    _clock.restart();
    _lastShown = 0;
}

void Console::progressTo(std::size_t done)
{
    const qint64 now = _clock.elapsed();
    if (!_showsProgress || now - _lastShown < kProgressInterval)
        return;
    if (_outputIsTerminal)
        _output.flush();
    _lastShown = now;
    _hasProgressLine = true;
    const double seconds = static_cast<double>(now) / 1000;
    writeError(kEraseLine + progressLine(done, _total, seconds, progressWidth()).toUtf8());
}

void Console::beginOutput(const QIODevice &device)
{
    if (&device == &_outputText || &device == &_errorText)
        clearProgressLine();
}

void Console::endProgress()
{
    clearProgressLine();
    _showsProgress = false;
}

void Console::clearProgressLine()
{
    if (_hasProgressLine)
        writeError(kEraseLine);
    _hasProgressLine = false;
}

void Console::writeError(const QByteArray &bytes)
{
    _errors.write(bytes);
}

/// One column less than there are: a full line would go on in the next one.
int Console::progressWidth() const
{
    winsize size{};
    const bool isKnown = ::ioctl(_streams.errors, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return (isKnown ? size.ws_col : kUsualWidth) - 1;
}

QString progressLine(std::size_t done, std::size_t total, double seconds, int width)
{
    const double share = static_cast<double>(done) / static_cast<double>(total);
    const double perSecond = seconds > 0 ? static_cast<double>(done) / seconds : 0;
    const QString left = perSecond > 0 ? clockTime(static_cast<double>(total - done) / perSecond)
                                       : QStringLiteral("--:--:--");
    const QString text = QStringLiteral("%1 of %2, %3 files/s, %4 left")
                             .arg(done)
                             .arg(total)
                             .arg(perSecond, 0, 'f', 0)
                             .arg(left);
    // The bar has two ends and a blank behind it.
    const int bar = std::min(kWidestBar, width - static_cast<int>(text.size()) - 3);
    if (bar < kNarrowestBar)
        return text.first(std::clamp<qsizetype>(width, 0, text.size()));
    const int filled = static_cast<int>(share * bar);
    return u'[' + QString(filled, u'=') + QString(bar - filled, u' ') + QStringLiteral("] ") + text;
}

} // namespace quorvin::cli
