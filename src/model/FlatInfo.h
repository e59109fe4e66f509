// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/FlatItem.h"

#include <QHash>
#include <QStringList>

#include <memory>
#include <vector>

namespace quorvin {

/// An ordered map of parameters. A key that is added again keeps its first place, gets a second one, and the
/// newest item stands in both.
class FlatInfo {
public:
    using ItemPtr = std::shared_ptr<const FlatItem>;

    /// Does nothing without an item or with an item without key; logs when the key is already present.
    void addItem(const ItemPtr &item);

    /// Null when there is none of that key, or none at that place.
    ItemPtr itemForKey(const QString &key) const { return _data.value(key); }
    ItemPtr operator[](const QString &key) const { return itemForKey(key); }
    ItemPtr operator[](qsizetype index) const;

    /// In the order of `keys`; after a repeated key its newest item comes once for each time it was added.
    std::vector<ItemPtr> items() const;
    const QStringList &keys() const { return _keys; }

private:
    QStringList _keys;
    QHash<QString, ItemPtr> _data;
};

} // namespace quorvin
