// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/Paths.h"

#include "model/Log.h"
#include "platform/NativePath.h"

#include <QDir>
#include <QUuid>

#include <sys/stat.h>

#include <filesystem>
#include <system_error>

namespace quorvin::Utilities {

namespace {

constexpr int kMostTries = 9998;

bool exists(const QString &path)
{
    struct stat facts { };
    return ::lstat(encodePath(path).constData(), &facts) == 0;
}

QString globallyUniqueName()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

} // namespace

Expected<QString> createFolder(const QString &path)
{
    std::error_code problem;
    std::filesystem::create_directories(encodePath(path).toStdString(), problem);
    if (problem)
        return posixFailure(problem.value());
    return path;
}

QString uniqueFilename(const QString &path)
{
    if (!exists(path))
        return path;
    const QString extension = pathExtension(path);
    const QString tail = extension.isEmpty() ? QString() : u'.' + extension;
    const QString base = path.left(path.size() - tail.size());
    QString candidate;
    for (int n = 1; n <= kMostTries; ++n) {
        candidate = base + QLatin1String(" (") + QString::number(n) + u')' + tail;
        if (!exists(candidate))
            break;
    }
    return candidate;
}

Expected<QString> createUniqueFolder(const QString &path)
{
    auto folder = createFolder(uniqueFilename(path));
    if (!folder)
        qCInfo(lcQuorvin).noquote() << "Failed to create the folder" << path;
    return folder;
}

Expected<QString> createTemporaryFolderWithName(const std::optional<QString> &name)
{
    return createFolder(QDir::tempPath() + u'/' + name.value_or(globallyUniqueName()));
}

Expected<QString> createRandomTemporaryFolderInSubfolder(const std::optional<QString> &subfolder)
{
    const QString above = subfolder ? *subfolder + u'/' : QString();
    return createFolder(QDir::tempPath() + u'/' + above + globallyUniqueName());
}

} // namespace quorvin::Utilities
