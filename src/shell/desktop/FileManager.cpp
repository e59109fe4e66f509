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

void openFolderOf(const QString &path, const std::function<void()> &whenFailed)
{
    if (!openWithDesktop(withoutLastPathComponent(path)) && whenFailed)
        whenFailed();
}

} // namespace

void revealInFileManager(const QString &path, QObject *context, const std::function<void()> &whenFailed)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return openFolderOf(path, whenFailed);
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QString::fromLatin1(fileUri(path))} << QString();
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, path, whenFailed] {
        watcher->deleteLater();
        if (watcher->isError())
            openFolderOf(path, whenFailed);
    });
}

bool openWithDesktop(const QString &path)
{
    return QDesktopServices::openUrl(QUrl::fromEncoded(fileUri(path)));
}

} // namespace quorvin
