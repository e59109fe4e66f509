// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/StandardStreams.h"

#include "model/Log.h"

#include <QByteArray>

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>

namespace quorvin {

namespace {

int errorDescriptor = STDERR_FILENO;

void writeMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    ::dprintf(errorDescriptor, "%s\n", qFormatLogMessage(type, context, message).toUtf8().constData());
}

int keptCopy(int descriptor)
{
    return ::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
}

} // namespace

StandardStreams takeStandardStreams()
{
    const StandardStreams streams{keptCopy(STDOUT_FILENO), keptCopy(STDERR_FILENO)};
    errorDescriptor = streams.errors;
    qInstallMessageHandler(writeMessage);

    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    const int noise = lcLibraries().isDebugEnabled() ? streams.errors : nowhere;
    ::dup2(noise, STDOUT_FILENO);
    ::dup2(noise, STDERR_FILENO);
    ::close(nowhere);
    return streams;
}

} // namespace quorvin
