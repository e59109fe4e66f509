// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Inputs.h"

#include "platform/GivenPath.h"
#include "platform/NativePath.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace quorvin::cli {

namespace {

Expected<QStringList> listedPaths(const QString &name, char separator)
{
    const bool isStandardInput = name == QLatin1String("-");
    const int descriptor
        = isStandardInput ? STDIN_FILENO : ::open(encodePath(name).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return failure(name + QLatin1String(": ") + posixFailure(errno).value().description);
    QFile list;
    list.open(descriptor, QIODevice::ReadOnly,
              isStandardInput ? QFileDevice::DontCloseHandle : QFileDevice::AutoCloseHandle);
    QStringList paths;
    for (const QByteArray &path : list.readAll().split(separator)) {
        if (!path.isEmpty())
            paths.append(decodePath(path));
    }
    if (list.error() != QFileDevice::NoError)
        return failure(name + QLatin1String(": ") + list.errorString());
    return paths;
}

} // namespace

Expected<QStringList> inputPaths(const Arguments &arguments)
{
    QStringList words = arguments.paths;
    if (arguments.filesFrom) {
        const auto listed = listedPaths(*arguments.filesFrom, arguments.zeroSeparated ? '\0' : '\n');
        if (!listed)
            return tl::unexpected(listed.error());
        words += *listed;
    }
    QStringList paths;
    for (const QString &word : words) {
        const auto path = pathOfGiven(word);
        if (!path)
            return tl::unexpected(path.error());
        paths.append(*path);
    }
    return paths;
}

} // namespace quorvin::cli
