// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/OpenWith.h"

#include "platform/FileUri.h"

#include <QFileInfo>

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <algorithm>
#include <map>
#include <memory>

namespace quorvin {

namespace {

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using AppInfoPtr = std::unique_ptr<GAppInfo, Unref>;

QIcon iconOf(GAppInfo *info)
{
    GIcon *icon = g_app_info_get_icon(info);
    if (!icon)
        return {};
    char *text = g_icon_to_string(icon);
    const QString name = QString::fromUtf8(text);
    g_free(text);
    return name.startsWith(u'/') ? QIcon(name) : QIcon::fromTheme(name);
}

DesktopApplication described(GAppInfo *info)
{
    return {QString::fromUtf8(g_app_info_get_id(info)), QString::fromUtf8(g_app_info_get_display_name(info)),
            QString::fromUtf8(g_app_info_get_executable(info)), iconOf(info)};
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
    const QByteArray type = mimeName.toUtf8();
    DesktopApplications found;
    if (const AppInfoPtr usual{g_app_info_get_default_for_type(type.constData(), FALSE)}) {
        found.all.push_back(described(usual.get()));
        found.hasDefault = true;
    }
    GList *infos = g_app_info_get_all_for_type(type.constData());
    for (const GList *entry = infos; entry; entry = entry->next) {
        DesktopApplication application = described(G_APP_INFO(entry->data));
        if (std::ranges::find(found.all, application.id, &DesktopApplication::id) == found.all.end())
            found.all.push_back(std::move(application));
    }
    g_list_free_full(infos, g_object_unref);
    tellApart(found.all);
    std::sort(found.all.begin() + (found.hasDefault ? 1 : 0), found.all.end(),
              [](const DesktopApplication &one, const DesktopApplication &other) {
                  return one.name.compare(other.name, Qt::CaseInsensitive) < 0;
              });
    return found;
}

Expected<void> openWithApplication(const QString &path, const QString &id)
{
    const AppInfoPtr info{reinterpret_cast<GAppInfo *>(g_desktop_app_info_new(id.toUtf8().constData()))};
    if (!info)
        return failure(QStringLiteral("the application is no longer there"));
    const QString resolved = QFileInfo(path).canonicalFilePath();
    QByteArray uri = fileUri(resolved.isEmpty() ? path : resolved);
    GList uris{uri.data(), nullptr, nullptr};
    GError *error = nullptr;
    if (g_app_info_launch_uris(info.get(), &uris, nullptr, &error))
        return {};
    const QString reason = QString::fromUtf8(error->message);
    g_error_free(error);
    return failure(reason);
}

} // namespace quorvin
