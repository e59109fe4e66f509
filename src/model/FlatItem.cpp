// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/FlatItem.h"

#include <QStringList>

namespace quorvin {

FlatItem FlatItem::itemWithKey(const QString &key, std::optional<QString> label, const QVariant &rawValue)
{
    FlatItem item;
    item.key = key;
    item.label = std::move(label);
    item.value = rawValue.typeId() == QMetaType::QStringList
        ? rawValue.toStringList().join(QLatin1String(", "))
        : rawValue.toString();
    item.rawValue = rawValue;
    return item;
}

FlatItem FlatItem::itemWithKey(const QString &key, const QString &stringValue, std::optional<QString> label,
                               bool isPrivateInfo, bool skipInExtended, bool skipInExport,
                               bool skipInComparison)
{
    FlatItem item;
    item.isPrivateInfo = isPrivateInfo;
    item.skipInExtended = skipInExtended;
    item.skipInExport = skipInExport;
    item.skipInComparison = skipInComparison;
    item.key = key;
    item.label = std::move(label);
    item.value = stringValue;
    item.rawValue = stringValue;
    return item;
}

} // namespace quorvin
