// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileUri.h"

#include "platform/NativePath.h"

#include <QSysInfo>

namespace quorvin {

namespace {

bool isThisMachine(const QString &host)
{
    return host.isEmpty() || host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0
        || host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

} // namespace

QByteArray fileUri(const QString &path)
{
    return "file://" + encodePath(path).toPercentEncoding("/");
}

std::optional<QString> pathFromUri(const QString &uri)
{
    if (!uri.startsWith(QLatin1String("file:"), Qt::CaseInsensitive))
        return std::nullopt;
    QString rest = uri.mid(5);
    if (rest.startsWith(QLatin1String("//"))) {
        const qsizetype slash = rest.indexOf(u'/', 2);
        const QString host = slash < 0 ? rest.mid(2) : rest.mid(2, slash - 2);
        if (slash < 0 || !isThisMachine(host))
            return std::nullopt;
        rest = rest.mid(slash);
    }
    if (!rest.startsWith(u'/'))
        return std::nullopt;
    return absolutePath(decodePath(QByteArray::fromPercentEncoding(encodePath(rest))));
}

QStringList pathsFromUriList(const QByteArray &list)
{
    QStringList paths;
    for (const QByteArray &line : list.split('\n')) {
        if (const auto path = pathFromUri(decodePath(line.trimmed())))
            paths.append(*path);
    }
    return paths;
}

QByteArray uriListOf(const QStringList &paths)
{
    QByteArray list;
    for (const QString &path : paths)
        list += fileUri(path) + "\r\n";
    return list;
}

} // namespace quorvin
