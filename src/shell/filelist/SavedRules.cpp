// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/SavedRules.h"

#include "shell/session/LiveSettings.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace quorvin {

QMap<QString, QString> SavedRules::all() const
{
    const QJsonObject kept = QJsonDocument::fromJson(_settings.string(Setting::savedRules).toUtf8()).object();
    QMap<QString, QString> rules;
    for (auto rule = kept.begin(); rule != kept.end(); ++rule) {
        if (!rule.value().toString().isEmpty())
            rules.insert(rule.key(), rule.value().toString());
    }
    return rules;
}

void SavedRules::keep(const QString &name, const QString &text)
{
    QJsonObject kept;
    const QMap<QString, QString> before = all();
    for (auto rule = before.begin(); rule != before.end(); ++rule)
        kept.insert(rule.key(), rule.value());
    if (text.isEmpty())
        kept.remove(name);
    else
        kept.insert(name, text);
    _settings.set(Setting::savedRules,
                  kept.isEmpty() ? QString()
                                 : QString::fromUtf8(QJsonDocument(kept).toJson(QJsonDocument::Compact)));
}

} // namespace quorvin
