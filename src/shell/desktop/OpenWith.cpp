// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/OpenWith.h"

#include "platform/FileUri.h"
#include "shell/desktop/GioLibrary.h"

#include <QFileInfo>

#include <algorithm>
#include <map>

namespace quorvin {

namespace {

using AppInfoPtr = GioLibrary::AppInfoPtr;

QIcon iconOf(GAppInfo *info)
{
    const GioLibrary &gio = GioLibrary::instance();
    GIcon *icon = gio.icon(info);
    if (!icon)
        return {};
    char *text = gio.iconText(icon);
    const QString name = QString::fromUtf8(text);
    gio.free(text);
    return name.startsWith(u'/') ? QIcon(name) : QIcon::fromTheme(name);
}

DesktopApplication described(GAppInfo *info)
{
    const GioLibrary &gio = GioLibrary::instance();
    return {QString::fromUtf8(gio.id(info)), QString::fromUtf8(gio.displayName(info)),
            QString::fromUtf8(gio.executable(info)), iconOf(info)};
}

/// Names that more than one has get the name of the desktop file behind them.
void tellApart(std::vector<DesktopApplication> &applications)
{
    std::map<QString, int> counts;
    for (const DesktopApplication &application : applications)
        ++counts[application.name];
    for (DesktopApplication &application : applications) {
        if (counts[application.name] < 2)
            continue;
        QString file = application.id;
        if (file.endsWith(QLatin1String(".desktop")))
            file.chop(8);
        application.name = QStringLiteral("%1 (%2)").arg(application.name, file);
    }
}

} // namespace

DesktopApplications applicationsFor(const QString &mimeName)
{
    const GioLibrary &gio = GioLibrary::instance();
    const QByteArray type = mimeName.toUtf8();
    DesktopApplications found;
    if (const AppInfoPtr usual{gio.defaultForType(type.constData(), FALSE)}) {
        found.all.push_back(described(usual.get()));
        found.hasDefault = true;
    }
    GList *infos = gio.allForType(type.constData());
    for (const GList *entry = infos; entry; entry = entry->next) {
        const AppInfoPtr info{static_cast<GAppInfo *>(entry->data)};
        DesktopApplication application = described(info.get());
        if (std::ranges::find(found.all, application.id, &DesktopApplication::id) == found.all.end())
            found.all.push_back(std::move(application));
    }
    gio.freeList(infos);
    tellApart(found.all);
    std::sort(found.all.begin() + (found.hasDefault ? 1 : 0), found.all.end(),
              [](const DesktopApplication &one, const DesktopApplication &other) {
                  return one.name.compare(other.name, Qt::CaseInsensitive) < 0;
              });
    return found;
}

Expected<void> openWithApplication(const QString &path, const QString &id)
{
    const GioLibrary &gio = GioLibrary::instance();
    const AppInfoPtr info{reinterpret_cast<GAppInfo *>(gio.application(id.toUtf8().constData()))};
    if (!info)
        return failure(QStringLiteral("the application is no longer there"));
    const QString resolved = QFileInfo(path).canonicalFilePath();
    QByteArray uri = fileUri(resolved.isEmpty() ? path : resolved);
    GList uris{uri.data(), nullptr, nullptr};
    GError *error = nullptr;
    if (gio.launchUris(info.get(), &uris, static_cast<GAppLaunchContext *>(nullptr), &error))
        return {};
    return failure(gio.take(error));
}

} // namespace quorvin
