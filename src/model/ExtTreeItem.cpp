// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ExtTreeItem.h"

#include <utility>

namespace quorvin {

ExtTreeItemPtr ExtTreeItem::itemWithKey(const QString &key, const QString &name, const QString &value)
{
    return itemWithKey(key, name, value, {});
}

ExtTreeItemPtr ExtTreeItem::itemWithKey(const QString &key, const QString &name, const QString &value,
                                        ParameterFlags storedFlags)
{
    auto item = std::make_shared<ExtTreeItem>();
    item->_key = key;
    item->_name = name;
    item->_value = StyledText{value};
    item->_storedFlags = storedFlags;
    return item;
}

ExtTreeItemPtr ExtTreeItem::itemWithName(const QString &name, const QString &value)
{
    return itemWithName(name, StyledText{value});
}

ExtTreeItemPtr ExtTreeItem::itemWithName(const QString &name, StyledText value)
{
    auto item = std::make_shared<ExtTreeItem>();
    item->_name = name;
    item->_value = std::move(value);
    return item;
}

ExtTreeItemPtr ExtTreeItem::locationItemWithName(const QString &name, const QString &value)
{
    auto item = std::make_shared<ExtTreeItem>();
    item->_name = name;
    item->_value = StyledText{value};
    item->_isLocation = true;
    return item;
}

ExtTreeItemPtr ExtTreeItem::itemWithFlatItem(std::shared_ptr<const FlatItem> flatItem)
{
    auto item = std::make_shared<ExtTreeItem>();
    item->_key = flatItem->key;
    item->_name = flatItem->label.value_or(flatItem->key);
    item->_value = StyledText{flatItem->value};
    item->_flatItem = std::move(flatItem);
    return item;
}

ExtTreeItemPtr ExtTreeItem::mediaStreamItemWithKey(const QString &key, const QString &name, StyledText value,
                                                   quint64 streamIndex)
{
    auto item = std::make_shared<ExtTreeItem>();
    item->_isMediaStream = true;
    item->_key = key;
    item->_name = name;
    item->_value = std::move(value);
    item->_mediaStreamIndex = streamIndex;
    return item;
}

ExtTreeItemPtr ExtTreeItem::groupTreeWithKey(const QString &key, const QString &name, ExtTreeItems children,
                                             quint64 streamIndex)
{
    auto item = std::make_shared<ExtTreeItem>();
    item->_isGroupTree = true;
    item->_key = key;
    item->_name = name;
    item->_children = std::move(children);
    item->_mediaStreamIndex = streamIndex;
    return item;
}

ExtTreeItemPtr ExtTreeItem::groupTreeWithName(const QString &name, ExtTreeItems children)
{
    auto item = std::make_shared<ExtTreeItem>();
    item->_isGroupTree = true;
    item->_name = name;
    item->_children = std::move(children);
    return item;
}

ExtTreeItemPtr ExtTreeItem::newInstanceWithSameProperties(ExtTreeItems children) const
{
    auto item = std::make_shared<ExtTreeItem>(*this);
    item->_children = std::move(children);
    item->_storedFlags = {};
    item->_flatItem.reset();
    return item;
}

ExtTreeItemPtr ExtTreeItem::newInstanceWithSameProperties() const
{
    auto item = std::make_shared<ExtTreeItem>(*this);
    item->_storedFlags = {};
    item->_flatItem.reset();
    return item;
}

bool ExtTreeItem::isPrivateInfo() const
{
    return _storedFlags.testFlag(ParameterFlag::IsPrivateInfo) || (_flatItem && _flatItem->isPrivateInfo);
}

QString ExtTreeItem::extValue() const
{
    return _value ? _name + QLatin1String(": ") + _value->plain : _name;
}

QString ExtTreeItem::description() const
{
    return QStringLiteral("<ExtTreeItem 0x%1> key:%2, name:%3, value:%4, children:%5")
        .arg(reinterpret_cast<quintptr>(this), 0, 16)
        .arg(_key.value_or(QString()), _name, stringValue())
        .arg(_children ? _children->size() : 0);
}

} // namespace quorvin
