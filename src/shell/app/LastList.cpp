// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/app/LastList.h"

#include "model/Log.h"
#include "platform/AtomicFile.h"
#include "platform/NativePath.h"
#include "shell/desktop/BackgroundRun.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <atomic>
#include <functional>
#include <mutex>
#include <utility>

namespace quorvin::LastList {

namespace {

constexpr QByteArrayView kHead("quorvin-last-list 1"); ///< then path and shown path of each file by turns
constexpr qint64 kMostBytes = 256 << 20;

/// On a thread, behind what it does already; not at all when something newer has come by then.
void runUnlessOvertaken(std::function<void()> work)
{
    static std::atomic<int> newest = 0;
    const int number = ++newest;
    BackgroundRunBase::runOnThread("LastList", [number, work = std::move(work)] {
        static std::mutex lock;
        const std::scoped_lock guard(lock);
        if (number == newest)
            work();
    });
}

QByteArray bytesOf(const std::vector<FilelistItemPtr> &files)
{
    QByteArray bytes = kHead.toByteArray();
    const std::size_t count = std::min(files.size(), kMost);
    for (std::size_t i = 0; i < count; ++i)
        bytes += '\0' + encodePath(files[i]->filename()) + '\0' + encodePath(files[i]->prefixedPath());
    return bytes;
}

} // namespace

QString userPath()
{
    const QString named = decodePath(qgetenv("XDG_STATE_HOME"));
    const QString folder = named.startsWith(u'/') ? named : QDir::homePath() + QLatin1String("/.local/state");
    return folder + QLatin1String("/quorvin/last-list");
}

void keep(const std::vector<FilelistItemPtr> &files)
{
    runUnlessOvertaken([path = userPath(), files] {
        if (const auto written = write(path, files); !written)
            qCInfo(lcQuorvin).noquote() << "Failed to keep the list:" << written.error().description;
    });
}

void forget()
{
    runUnlessOvertaken([path = userPath()] { QFile::remove(path); });
}

Expected<void> write(const QString &path, const std::vector<FilelistItemPtr> &files)
{
    QDir().mkpath(withoutLastPathComponent(path));
    return writeWhole(path, [&](QFile &device) -> Expected<void> {
        const QByteArray bytes = bytesOf(files);
        // Nobody else is to learn what was looked at.
        device.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        if (device.write(bytes) != bytes.size())
            return failure(device.errorString());
        return {};
    });
}

std::vector<FilelistItemPtr> read(const QString &path)
{
    std::vector<FilelistItemPtr> files;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMostBytes)
        return files;
    const QList<QByteArray> parts = file.readAll().split('\0');
    if (parts.front() != kHead)
        return files;
    for (qsizetype i = 1; i + 1 < parts.size() && files.size() < kMost; i += 2) {
        if (parts[i].startsWith('/'))
            files.push_back(FilelistItem::itemWithFilename(decodePath(parts[i]), decodePath(parts[i + 1])));
    }
    return files;
}

} // namespace quorvin::LastList
