// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/FlatInfo.h"

#include "model/Log.h"

namespace quorvin {

void FlatInfo::addItem(const ItemPtr &item)
{
    if (!item || item->key.isEmpty())
        return;
    if (const ItemPtr old = _data.value(item->key)) {
        qCInfo(lcQuorvin).noquote() << QStringLiteral(
                                           "Warning! Key is already present in DataItem and will be "
                                           "overwritten: %1 with value: %2, old value: %3")
                                           .arg(item->key, item->value, old->value);
    }
    _keys.append(item->key);
    _data.insert(item->key, item);
}

FlatInfo::ItemPtr FlatInfo::operator[](qsizetype index) const
{
    return index >= 0 && index < _keys.size() ? itemForKey(_keys.at(index)) : nullptr;
}

std::vector<FlatInfo::ItemPtr> FlatInfo::items() const
{
    std::vector<ItemPtr> all;
    all.reserve(static_cast<std::size_t>(_keys.size()));
    for (const QString &key : _keys)
        all.push_back(itemForKey(key));
    return all;
}

} // namespace quorvin
