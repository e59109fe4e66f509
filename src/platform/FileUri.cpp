// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileUri.h"

#include "platform/NativePath.h"

namespace quorvin {

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
        if (slash < 0 || (!host.isEmpty() && host != QLatin1String("localhost")))
            return std::nullopt;
        rest = rest.mid(slash);
    }
    if (!rest.startsWith(u'/'))
        return std::nullopt;
    return absolutePath(decodePath(QByteArray::fromPercentEncoding(rest.toUtf8())));
}

QStringList pathsFromUriList(const QByteArray &list)
{
    QStringList paths;
    for (const QByteArray &line : list.split('\n')) {
        if (const auto path = pathFromUri(QString::fromUtf8(line.trimmed())))
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
