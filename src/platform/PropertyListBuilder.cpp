// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PropertyListBuilder.h"

#include <QtEndian>

#include <plist/plist.h>

namespace quorvin {

namespace {

constexpr qsizetype kTrailerSize = 32;

/// libplist tells the length in 32 bits: of a longer list it is wrong, and the trailer does not stand there.
bool endsInTrailer(QByteArrayView list)
{
    if (list.size() < kTrailerSize)
        return false;
    const char *trailer = list.last(kTrailerSize).data();
    const auto offsetSize = static_cast<quint64>(trailer[6]);
    const auto objects = qFromBigEndian<quint64>(trailer + 8);
    const auto offsetTable = qFromBigEndian<quint64>(trailer + 24);
    return offsetTable + objects * offsetSize + kTrailerSize == static_cast<quint64>(list.size());
}

} // namespace

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

tl::expected<void, QString> PropertyListBuilder::writeBinary(const std::function<void(QByteArrayView)> &write)
{
    char *bytes = nullptr;
    uint32_t length = 0;
    plist_to_bin(_root.get(), &bytes, &length);
    _root.reset();
    const std::unique_ptr<char, decltype(&plist_to_bin_free)> owner(bytes, &plist_to_bin_free);
    const QByteArrayView list(bytes, static_cast<qsizetype>(length));
    if (!bytes || !endsInTrailer(list))
        return tl::unexpected(QStringLiteral("too much for a property list"));
    write(list);
    return {};
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
