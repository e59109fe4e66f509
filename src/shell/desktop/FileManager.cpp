// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/FileManager.h"

#include "platform/FileUri.h"
#include "platform/NativePath.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QUrl>

namespace quorvin {

namespace {

void openFolderOf(const QString &path)
{
    openWithDesktop(withoutLastPathComponent(path));
}

} // namespace

void revealInFileManager(const QString &path)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return openFolderOf(path);
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QString::fromLatin1(fileUri(path))} << QString();
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, path] {
        watcher->deleteLater();
        if (watcher->isError())
            openFolderOf(path);
    });
}

bool openWithDesktop(const QString &path)
{
    return QDesktopServices::openUrl(QUrl::fromEncoded(fileUri(path)));
}

} // namespace quorvin
