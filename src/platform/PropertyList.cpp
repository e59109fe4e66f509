// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PropertyList.h"

#include "model/Log.h"
#include "platform/PropertyListBudget.h"

#include <QDateTime>

#include <plist/plist.h>

#include <cstdlib>
#include <limits>
#include <memory>
#include <optional>

namespace quorvin {

namespace {

/// Dates of a property list count from the first of January 2001.
constexpr qint64 kReferenceDate = 978'307'200;

struct NodeDeleter {
    void operator()(void *node) const { plist_free(node); }
};

std::optional<QVariant> valueOf(plist_t node, int depth);

QString stringOf(plist_t node)
{
    uint64_t length = 0;
    const char *text = plist_get_string_ptr(node, &length);
    return QString::fromUtf8(text, static_cast<qsizetype>(length));
}

std::optional<QVariant> listOf(plist_t node, int depth)
{
    QVariantList list;
    for (uint32_t i = 0; i < plist_array_get_size(node); ++i) {
        const auto element = valueOf(plist_array_get_item(node, i), depth + 1);
        if (!element)
            return std::nullopt;
        list.append(*element);
    }
    return list;
}

std::optional<QVariant> mapOf(plist_t node, int depth)
{
    QVariantMap map;
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(node, &position);
    const std::unique_ptr<void, decltype(&std::free)> owner(position, &std::free);
    for (;;) {
        char *key = nullptr;
        plist_t child = nullptr;
        plist_dict_next_item(node, position, &key, &child);
        const std::unique_ptr<char, decltype(&std::free)> keyOwner(key, &std::free);
        if (!child)
            return map;
        const auto element = valueOf(child, depth + 1);
        if (!element)
            return std::nullopt;
        map.insert(QString::fromUtf8(key), *element);
    }
}

QVariant dateOf(plist_t node)
{
    int32_t seconds = 0;
    int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    using Limits = std::numeric_limits<int32_t>;
    if (seconds == Limits::min() || seconds == Limits::max())
        return {};
    return QDateTime::fromMSecsSinceEpoch((kReferenceDate + seconds) * 1000 + microseconds / 1000, Qt::UTC);
}

QVariant bytesOf(plist_t node)
{
    uint64_t length = 0;
    const char *bytes = plist_get_data_ptr(node, &length);
    return QByteArray(bytes, static_cast<qsizetype>(length));
}

QVariant scalarOf(plist_t node, plist_type type)
{
    uint8_t boolean = 0;
    uint64_t integer = 0;
    double real = 0;
    switch (type) {
    case PLIST_BOOLEAN:
        plist_get_bool_val(node, &boolean);
        return boolean != 0;
    case PLIST_UINT:
        plist_get_uint_val(node, &integer);
        return static_cast<qulonglong>(integer);
    case PLIST_REAL:
        plist_get_real_val(node, &real);
        return real;
    default:
        return {};
    }
}

std::optional<QVariant> valueOf(plist_t node, int depth)
{
    if (depth > kMaxPropertyListDepth)
        return std::nullopt;
    switch (const plist_type type = plist_get_node_type(node)) {
    case PLIST_STRING:
        return stringOf(node);
    case PLIST_ARRAY:
        return listOf(node, depth);
    case PLIST_DICT:
        return mapOf(node, depth);
    case PLIST_DATE:
        return dateOf(node);
    case PLIST_DATA:
        return bytesOf(node);
    default:
        return scalarOf(node, type);
    }
}

} // namespace

Expected<QVariant> parsePropertyList(QByteArrayView bytes)
{
    const auto refused = failure(QStringLiteral("not a property list"));
    if (bytes.isEmpty() || bytes.size() > std::numeric_limits<int32_t>::max())
        return refused;
    if (!expandsWithinBudget(bytes)) {
        qCDebug(lcLibraries) << "libplist: spared a list that expands beyond all measure";
        return refused;
    }
    plist_t root = nullptr;
    plist_from_memory(bytes.data(), static_cast<uint32_t>(bytes.size()), &root);
    const std::unique_ptr<void, NodeDeleter> owner(root);
    if (!root) {
        qCDebug(lcLibraries) << "libplist: refused" << bytes.size() << "bytes";
        return refused;
    }
    auto value = valueOf(root, 0);
    if (!value)
        return refused;
    return *std::move(value);
}

} // namespace quorvin
