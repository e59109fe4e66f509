// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/outline/WatchedParameter.h"

#include "shell/outline/ExtTreeModel.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace quorvin {

namespace {

constexpr std::size_t kMostWatched = 50; ///< that settings are believed

QString keyOf(const ExtTreeItem &item)
{
    return item.key() ? *item.key() : item.name();
}

const ExtTreeItem *leafNamed(const ExtTreeItems &items, const QString &key)
{
    for (const ExtTreeItemPtr &item : items) {
        const ExtTreeItem *found = nullptr;
        if (item->children())
            found = leafNamed(*item->children(), key);
        else if (keyOf(*item) == key)
            found = item.get();
        if (found)
            return found;
    }
    return nullptr;
}

} // namespace

QString WatchedParameter::title() const
{
    return stream > 1 ? QStringLiteral("%1 #%2: %3").arg(group, QString::number(stream), label)
                      : QStringLiteral("%1: %2").arg(group, label);
}

std::optional<WatchedParameter> watchedParameterAt(const ExtTreeModel &tree, const QModelIndex &row)
{
    const ExtTreeItem *item = tree.itemAt(row);
    if (!item || !item->value() || !row.parent().isValid())
        return std::nullopt;
    QModelIndex top = row.parent();
    while (top.parent().isValid())
        top = top.parent();
    const ExtTreeItem &group = *tree.itemAt(top);
    return WatchedParameter{keyOf(group), group.mediaStreamIndex(), keyOf(*item), item->name()};
}

const ExtTreeItem *findWatched(const ExtTreeItems &tree, const WatchedParameter &parameter)
{
    const auto hasKey
        = [&](const ExtTreeItemPtr &group) { return group->children() && keyOf(*group) == parameter.group; };
    const auto isIt = [&](const ExtTreeItemPtr &group) {
        return hasKey(group) && group->mediaStreamIndex() == parameter.stream;
    };
    auto found = std::ranges::find_if(tree, isIt);
    // A file with one stream of the kind does not number it.
    if (found == tree.end() && parameter.stream <= 1)
        found = std::ranges::find_if(tree, hasKey);
    return found == tree.end() ? nullptr : leafNamed(*(*found)->children(), parameter.key);
}

QString textOfWatched(const WatchedParameters &parameters)
{
    QJsonArray array;
    for (const WatchedParameter &parameter : parameters)
        array.append(QJsonArray{parameter.group, static_cast<qint64>(parameter.stream), parameter.key,
                                parameter.label});
    return array.isEmpty() ? QString()
                           : QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

WatchedParameters watchedFromText(const QString &text)
{
    WatchedParameters parameters;
    const QJsonArray array = QJsonDocument::fromJson(text.toUtf8()).array();
    for (const auto &value : array) {
        const QJsonArray fields = value.toArray();
        const WatchedParameter parameter{fields.at(0).toString(),
                                         static_cast<quint64>(std::max(fields.at(1).toInteger(), qint64(0))),
                                         fields.at(2).toString(), fields.at(3).toString()};
        if (fields.size() == 4 && !parameter.key.isEmpty() && parameters.size() < kMostWatched)
            parameters.push_back(parameter);
    }
    return parameters;
}

} // namespace quorvin
