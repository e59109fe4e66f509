// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PropertyListBuilder.h"

#include "platform/BinaryPropertyList.h"

#include <plist/plist.h>

namespace quorvin {

void PropertyListBuilder::NodeDeleter::operator()(Node node) const
{
    plist_free(node);
}

void PropertyListBuilder::openMap()
{
    open(plist_new_dict());
}

void PropertyListBuilder::openList()
{
    open(plist_new_array());
}

void PropertyListBuilder::close()
{
    _open.pop_back();
}

void PropertyListBuilder::put(QByteArray text)
{
    text.replace('\0', "\xef\xbf\xbd");
    Container &into = _open.back();
    if (plist_get_node_type(into.node) == PLIST_DICT && !into.key)
        into.key = std::move(text);
    else
        add(plist_new_string(text.constData()));
}

Expected<QByteArray> PropertyListBuilder::takeBinary()
{
    char *bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(_root.get(), &bytes, &length);
    _root.reset();
    const std::unique_ptr<char, decltype(&plist_to_bin_free)> owner(bytes, &plist_to_bin_free);
    const QByteArray list(bytes, static_cast<qsizetype>(length));
    if (!BinaryPropertyList(list).isWhole())
        return failure(QStringLiteral("too much for a property list"));
    return list;
}

void PropertyListBuilder::open(Node node)
{
    if (_open.empty())
        _root.reset(node);
    else
        add(node);
    _open.push_back({node, {}});
}

void PropertyListBuilder::add(Node node)
{
    Container &into = _open.back();
    if (into.key)
        plist_dict_set_item(into.node, std::exchange(into.key, {})->constData(), node);
    else
        plist_array_append_item(into.node, node);
}

} // namespace quorvin
