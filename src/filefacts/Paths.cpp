// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/Paths.h"

#include "model/Log.h"
#include "platform/NativePath.h"

#include <QDir>
#include <QUuid>

#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace quorvin::Utilities {

namespace {

constexpr int kMostNumber = 9998;

bool exists(const QString &path)
{
    struct stat facts { };
    return ::lstat(encodePath(path).constData(), &facts) == 0;
}

/// The number goes ahead of the extension; 0 for none.
QString numbered(const QString &path, int number)
{
    if (number == 0)
        return path;
    const QString extension = pathExtension(path);
    const QString tail = extension.isEmpty() ? QString() : u'.' + extension;
    return path.chopped(tail.size()) + QLatin1String(" (") + QString::number(number) + u')' + tail;
}

bool isTaken(const Error &error)
{
    return error.domain == kPosixErrorDomain && error.code == EEXIST;
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
    int number = 0;
    while (number < kMostNumber && exists(numbered(path, number)))
        ++number;
    return numbered(path, number);
}

Expected<QString> takeUniqueFilename(const QString &path,
                                     const std::function<Expected<void>(const QString &path)> &attempt)
{
    for (int number = 0; number <= kMostNumber; ++number) {
        const QString candidate = numbered(path, number);
        if (exists(candidate))
            continue;
        const Expected<void> taken = attempt(candidate);
        if (taken)
            return candidate;
        if (!isTaken(taken.error()))
            return tl::unexpected(taken.error());
    }
    return posixFailure(EEXIST);
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
