// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Console.h"

#include <unistd.h>

#include <cmath>

namespace quorvin::cli {

namespace {

constexpr int kBarWidth = 24;
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

Console::Console(StandardStreams streams) : _streams(streams)
{
    _output.open(_streams.output, QIODevice::WriteOnly);
    _errors.open(_streams.errors, QIODevice::WriteOnly | QIODevice::Unbuffered);
    _outputIsTerminal = ::isatty(_streams.output);
    _clock.start();
}

void Console::write(const QByteArray &bytes)
{
    beginOutput();
    _output.write(bytes);
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
    complain(escaped(path) + QLatin1String(": ") + escaped(reason));
}

void Console::complain(const QString &message)
{
    clearProgressLine();
    writeError("quorvin-cli: " + message.toUtf8() + '\n');
}

void Console::startProgress(std::size_t total)
{
    _total = total;
    _showsProgress = total >= 2 && ::isatty(_streams.errors);
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
    writeError(kEraseLine + progressLine(done, _total, static_cast<double>(now) / 1000).toUtf8());
}

void Console::beginOutput()
{
    if (_outputIsTerminal)
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

QString progressLine(std::size_t done, std::size_t total, double seconds)
{
    const double share = static_cast<double>(done) / static_cast<double>(total);
    const double perSecond = seconds > 0 ? static_cast<double>(done) / seconds : 0;
    const int filled = static_cast<int>(share * kBarWidth);
    const QString bar = QString(filled, u'=') + QString(kBarWidth - filled, u' ');
    const QString left = perSecond > 0 ? clockTime(static_cast<double>(total - done) / perSecond)
                                       : QStringLiteral("--:--:--");
    return QStringLiteral("[%1] %2 of %3, %4 files/s, %5 left")
        .arg(bar)
        .arg(done)
        .arg(total)
        .arg(perSecond, 0, 'f', 0)
        .arg(left);
}

} // namespace quorvin::cli
