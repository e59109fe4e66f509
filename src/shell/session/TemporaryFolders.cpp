// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/session/TemporaryFolders.h"

#include "filefacts/Paths.h"
#include "model/Log.h"

#include <QDir>
#include <QFileInfo>

#include <unistd.h>

#include <algorithm>

namespace quorvin {

namespace {

constexpr QLatin1String kPrefix("quorvin-run-");

/// Beside the folder, so that it can be told from what is in it.
QString lockPath(const QString &folder)
{
    return folder + QLatin1String(".lock");
}

/// A lock is only stale when its process is gone, however long it stands.
std::unique_ptr<QLockFile> lockOf(const QString &folder)
{
    auto lock = std::make_unique<QLockFile>(lockPath(folder));
    lock->setStaleLockTime(0);
    return lock;
}

} // namespace

TemporaryFolders::~TemporaryFolders()
{
    for (const QString &path : std::as_const(_tempFiles)) {
        if (!QDir(path).removeRecursively())
            qCInfo(lcQuorvin).noquote() << "Warning: failed to remove temp folder, error" << path;
    }
    if (_own && !_own->remove())
        qCInfo(lcQuorvin).noquote() << "Warning: failed to remove covers temp folder, error"
                                    << _own->errorString();
}

Expected<QString> TemporaryFolders::makeFolder(const QString &name)
{
    if (!_own) {
        auto folder
            = std::make_unique<QTemporaryDir>(QDir::tempPath() + u'/' + kPrefix + QLatin1String("XXXXXX"));
        if (!folder->isValid())
            return failure(folder->errorString());
        _lock = lockOf(folder->path());
        _lock->tryLock(0);
        _own = std::move(folder);
    }
    return Utilities::createUniqueFolder(_own->filePath(name));
}

bool TemporaryFolders::hold(const QString &path) const
{
    return std::ranges::any_of(_tempFiles,
                               [&](const QString &folder) { return path.startsWith(folder + u'/'); });
}

void TemporaryFolders::removeLeftovers()
{
    const QDir temporary(QDir::tempPath());
    const auto found = temporary.entryInfoList({kPrefix + QLatin1String("??????")},
                                               QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    for (const QFileInfo &folder : found) {
        if (folder.ownerId() != ::getuid())
            continue;
        const auto lock = lockOf(folder.filePath());
        // A folder that is just being made has no lock yet.
        if (QFileInfo::exists(lockPath(folder.filePath())) && lock->tryLock(0))
            QDir(folder.filePath()).removeRecursively();
    }
}

} // namespace quorvin
