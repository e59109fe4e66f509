// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/oExifToolStayOpenProcess.h"

#include "model/FailureKind.h"
#include "process/Reaper.h"

#include <QRandomGenerator>

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <optional>
#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kChunk = 65'536;
constexpr qsizetype kMostErrors = 4096; ///< bytes that are kept of them
constexpr qsizetype kMostOutput = qsizetype{256} << 20; ///< of an answer that is kept whole

/// The line of the argument file that stands for this argument; absent when there is none. A line ends with
/// a line feed and loses a carriage return before it; in its other form it gets a backslash before two signs.
std::optional<QByteArray> lineOf(const QByteArray &argument)
{
    if (!argument.contains('\n') && !argument.endsWith('\r'))
        return argument + '\n';
    if (argument.contains('$') || argument.contains('@'))
        return std::nullopt;
    QByteArray line("#[CSTR]");
    for (const char byte : argument) {
        if (byte == '\n')
            line += "\\n";
        else if (byte == '\r')
            line += "\\r";
        else if (byte == '\\' || byte == '"')
            line.append('\\').append(byte);
        else
            line += byte;
    }
    return line + '\n';
}

} // namespace

Expected<std::unique_ptr<oExifToolStayOpenProcess>>
oExifToolStayOpenProcess::init(const ExifToolLimits &limits)
{
    return startExifTool(limits.memoryMiB).map([&](const StartedExifTool &started) {
        return std::make_unique<oExifToolStayOpenProcess>(started, limits);
    });
}

oExifToolStayOpenProcess::oExifToolStayOpenProcess(const StartedExifTool &started,
                                                   const ExifToolLimits &limits)
    : _started(started),
      _limits(limits),
      _handle(static_cast<int>(::syscall(SYS_pidfd_open, started.pid, 0))),
      _number(QRandomGenerator::system()->generate64() >> 16U)
{
}

oExifToolStayOpenProcess::~oExifToolStayOpenProcess()
{
    stopProcess();
    for (const int descriptor :
         {_handle, _started.input, _started.inputEnd, _started.output, _started.errors})
        ::close(descriptor);
}

void oExifToolStayOpenProcess::stopProcess()
{
    _isRunning = false;
    if (_started.pid > 0)
        endChild(std::exchange(_started.pid, 0), _handle);
}

Expected<QByteArray> oExifToolStayOpenProcess::outputWithArguments(const QList<QByteArray> &arguments)
{
    QByteArray output;
    const auto done = outputWithArguments(arguments, [&](QByteArrayView piece) {
        output.append(piece);
        return output.size() <= kMostOutput;
    });
    if (!done)
        return tl::unexpected(done.error());
    if (output.size() > kMostOutput)
        return failure(QStringLiteral("there is too much to tell of it"));
    if (!output.isEmpty())
        return output;
    const QByteArray complaint = _errors.first(std::max<qsizetype>(_errors.indexOf('\n'), 0));
    return complaint.isEmpty() ? failure(FailureKind::NotUnderstood)
                               : failure(QStringLiteral("exiftool: ") + QString::fromUtf8(complaint));
}

Expected<void> oExifToolStayOpenProcess::outputWithArguments(const QList<QByteArray> &arguments,
                                                             const Sink &sink)
{
    if (!_isRunning)
        return ended();
    _errors.clear();
    _hasAllErrors = false;
    _deadline.setRemainingTime(_limits.patience);
    if (!ask(arguments))
        return failure(QStringLiteral("exiftool can not be told of a file of this name"));
    return takeAnswer(sink);
}

bool oExifToolStayOpenProcess::ask(const QList<QByteArray> &arguments)
{
    const QByteArray number = QByteArray::number(++_number);
    _end = "{ready" + number + "}\n";
    QByteArray question;
    for (const QByteArray &argument : arguments) {
        const auto line = lineOf(argument);
        if (!line)
            return false;
        question += *line;
    }
    question += "-echo4\n" + _end + "-execute" + number + '\n';
    // It has read all that came before, so that a question finds room.
    return question.size() <= PIPE_BUF * 4
        && ::write(_started.input, question.constData(), static_cast<std::size_t>(question.size()))
        == question.size();
}

Expected<void> oExifToolStayOpenProcess::takeAnswer(const Sink &sink)
{
    QByteArray held; // what may be the beginning of the mark
    bool isWhole = false;
    while (!isWhole || !_hasAllErrors) {
        bool hasOutput = false;
        bool hasErrors = false;
        if (auto readable = waitReadable(hasOutput, hasErrors); !readable)
            return give(readable.error());
        if (hasErrors)
            readErrors();
        if (!hasOutput)
            continue;
        std::array<char, kChunk> chunk;
        const ssize_t count = ::read(_started.output, chunk.data(), chunk.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return ended();
        held.append(chunk.data(), count);
        isWhole = held.endsWith(_end);
        const qsizetype certain = std::max<qsizetype>(held.size() - _end.size(), 0);
        if (!sink(QByteArrayView(held).first(certain))) {
            _isRunning = false;
            return {};
        }
        held.remove(0, certain);
    }
    return {};
}

Expected<void> oExifToolStayOpenProcess::waitReadable(bool &output, bool &errors) const
{
    std::array<pollfd, 2> ends{pollfd{_started.output, POLLIN, 0},
                               pollfd{_hasAllErrors ? -1 : _started.errors, POLLIN, 0}};
    while (!_deadline.hasExpired()) {
        const int patience = static_cast<int>(std::min<qint64>(_deadline.remainingTime(), INT_MAX));
        const int ready = ::poll(ends.data(), ends.size(), patience);
        if (ready < 0 && errno != EINTR)
            return posixFailure(errno);
        output = ends[0].revents != 0;
        errors = ends[1].revents != 0;
        if (ready > 0)
            return {};
    }
    return failure(FailureKind::TookTooLong);
}

void oExifToolStayOpenProcess::readErrors()
{
    std::array<char, kMostErrors> chunk;
    const ssize_t count = ::read(_started.errors, chunk.data(), chunk.size());
    if (count < 0 && errno == EINTR)
        return;
    _errors.append(chunk.data(), std::max<ssize_t>(count, 0));
    _hasAllErrors = count <= 0 || _errors.endsWith(_end);
    if (_errors.endsWith(_end))
        _errors.chop(_end.size());
    else if (_errors.size() > kMostErrors + _end.size())
        _errors.remove(kMostErrors, _errors.size() - kMostErrors - _end.size());
}

tl::unexpected<Error> oExifToolStayOpenProcess::give(const Error &error)
{
    _isRunning = false;
    return tl::unexpected(error);
}

tl::unexpected<Error> oExifToolStayOpenProcess::ended()
{
    const bool lacksMemory = _errors.contains("Out of memory");
    return give(failure(lacksMemory ? FailureKind::TooMuchMemory : FailureKind::ExifToolBrokeDown).value());
}

} // namespace quorvin
