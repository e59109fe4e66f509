// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Inputs.h"

#include "platform/NativePath.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace quorvin::cli {

namespace {

bool isAbsolute(const QString &path)
{
    return path.startsWith(u'/');
}

bool hasCurrentFolder()
{
    std::error_code problem;
    return !std::filesystem::current_path(problem).empty() && !problem;
}

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
    QStringList paths = arguments.paths;
    // Where a variable that holds a path is not set, nobody means the current folder.
    if (paths.contains(QString()))
        return failure(QStringLiteral("a path is empty"));
    if (arguments.filesFrom) {
        const auto listed = listedPaths(*arguments.filesFrom, arguments.zeroSeparated ? '\0' : '\n');
        if (!listed)
            return listed;
        paths += *listed;
    }
    if (!std::ranges::all_of(paths, isAbsolute) && !hasCurrentFolder())
        return failure(QStringLiteral("the current folder is gone, and a path counts from it"));
    std::ranges::transform(paths, paths.begin(), absolutePath);
    return paths;
}

} // namespace quorvin::cli
