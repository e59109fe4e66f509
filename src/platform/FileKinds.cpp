// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileKinds.h"

#include <QHash>
#include <QIODevice>
#include <QMimeDatabase>

namespace quorvin {

namespace {

/// Each call of `comment` reads a file of the database again, hence the memory.
QString descriptionOf(const QMimeType &type)
{
    thread_local QHash<QString, QString> descriptions;
    auto known = descriptions.find(type.name());
    if (known == descriptions.end())
        known = descriptions.insert(type.name(), type.comment());
    return *known;
}

} // namespace

FileKind fileKind(const QString &fileName, QIODevice &content)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFileNameAndData(fileName, &content);
    return type.isValid() ? FileKind{descriptionOf(type), type.name()} : FileKind{};
}

QString fileExtensionFromMimeType(const QString &mimeType)
{
    return QMimeDatabase().mimeTypeForName(mimeType).preferredSuffix();
}

} // namespace quorvin
