// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Inputs.h"

#include "platform/NativePath.h"

#include <QFile>

#include <cstdio>

namespace quorvin::cli {

Expected<QStringList> inputPaths(const Arguments &arguments)
{
    QStringList paths;
    for (const QString &path : arguments.paths)
        paths.append(absolutePath(path));
    if (!arguments.filesFrom)
        return paths;

    QFile list;
    const QString &name = *arguments.filesFrom;
    const bool opened = name == QLatin1String("-") ? list.open(stdin, QIODevice::ReadOnly)
                                                   : (list.setFileName(name), list.open(QIODevice::ReadOnly));
    if (!opened)
        return failure(name + QLatin1String(": ") + list.errorString());
    for (const QByteArray &path : list.readAll().split(arguments.zeroSeparated ? '\0' : '\n')) {
        if (!path.isEmpty())
            paths.append(absolutePath(decodePath(path)));
    }
    return paths;
}

} // namespace quorvin::cli
