// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/FlatItem.h"
#include "model/ParameterGroups.h"
#include "model/StyledText.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

class ExtTreeItem;
using ExtTreeItemPtr = std::shared_ptr<const ExtTreeItem>;
using ExtTreeItems = std::vector<ExtTreeItemPtr>;

/// A node of the Extended and General trees, read only once made.
class ExtTreeItem {
public:
    static ExtTreeItemPtr itemWithKey(const QString &key, const QString &name, const QString &value);
    /// A parameter of the file facts: the leaf knows whether its fact is private.
    static ExtTreeItemPtr itemWithKey(const QString &key, const QString &name, const QString &value,
                                      ParameterFlags storedFlags);
    static ExtTreeItemPtr itemWithName(const QString &name, const QString &value);
    static ExtTreeItemPtr itemWithName(const QString &name, StyledText value);
    static ExtTreeItemPtr locationItemWithName(const QString &name, const QString &value);
    /// The name is the item's label, or its key when the label is absent.
    static ExtTreeItemPtr itemWithFlatItem(std::shared_ptr<const FlatItem> flatItem);
    static ExtTreeItemPtr mediaStreamItemWithKey(const QString &key, const QString &name, StyledText value,
                                                 quint64 streamIndex);
    static ExtTreeItemPtr groupTreeWithKey(const QString &key, const QString &name, ExtTreeItems children,
                                           quint64 streamIndex);
    /// A group without a key.
    static ExtTreeItemPtr groupTreeWithName(const QString &name, ExtTreeItems children);
    /// A copy that shares these children in place of its own; the origin of a leaf is not taken along.
    ExtTreeItemPtr newInstanceWithSameProperties(ExtTreeItems children) const;
    ExtTreeItemPtr newInstanceWithSameProperties() const;

    bool isMediaStream() const { return _isMediaStream; }
    bool isGroupTree() const { return _isGroupTree; }
    bool isLocation() const { return _isLocation; }
    const std::optional<QString> &key() const { return _key; }
    const QString &name() const { return _name; }
    /// Absent on groups.
    const std::optional<StyledText> &value() const { return _value; }
    /// Stream number, counted from 0 on a stream line, from 1 on a stream's group; 0 on every other node.
    quint64 mediaStreamIndex() const { return _mediaStreamIndex; }
    /// Absent on leaves; a group without children has an empty list.
    const std::optional<ExtTreeItems> &children() const { return _children; }
    const std::shared_ptr<const FlatItem> &flatItem() const { return _flatItem; }
    /// A leaf that shows a fact about the user's file rather than the media.
    bool isPrivateInfo() const;

    /// The plain characters of the value, "" when it is absent.
    QString stringValue() const { return _value ? _value->plain : QString(); }
    /// "name: value", or the name alone when the value is absent.
    QString extValue() const;
    QString description() const;

private:
    bool _isMediaStream = false;
    bool _isGroupTree = false;
    bool _isLocation = false;
    std::optional<QString> _key;
    QString _name;
    std::optional<StyledText> _value;
    quint64 _mediaStreamIndex = 0;
    std::optional<ExtTreeItems> _children;
    ParameterFlags _storedFlags;
    std::shared_ptr<const FlatItem> _flatItem;
};

} // namespace quorvin
