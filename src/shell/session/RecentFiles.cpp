// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/session/RecentFiles.h"

#include "shell/session/LiveSettings.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace quorvin {

QStringList RecentFiles::paths() const
{
    QStringList paths;
    const auto stored = QJsonDocument::fromJson(_settings.string(Setting::recentFiles).toUtf8()).array();
    for (const auto &path : stored)
        paths.append(path.toString());
    return paths;
}

void RecentFiles::note(const QStringList &paths)
{
    QStringList all = paths + this->paths();
    all.removeDuplicates();
    const QJsonArray kept = QJsonArray::fromStringList(all.mid(0, kMost));
    _settings.set(Setting::recentFiles,
                  QString::fromUtf8(QJsonDocument(kept).toJson(QJsonDocument::Compact)));
}

void RecentFiles::clear()
{
    _settings.set(Setting::recentFiles, QString());
}

} // namespace quorvin
