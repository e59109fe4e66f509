// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileOrder.h"

#include "platform/UserLocale.h"

#include <unicode/coll.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <numeric>

namespace quorvin {

namespace {

/// One sort key: where it lies in the common buffer.
struct Key {
    std::size_t offset = 0;
    std::size_t length = 0;
};

std::unique_ptr<icu::Collator> makeCollator()
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(collationLocale(), status));
    if (U_FAILURE(status) || !collator)
        return nullptr;
    collator->setStrength(icu::Collator::SECONDARY);
    collator->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
    collator->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, status);
    collator->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_ON, status);
    return collator;
}

/// All sort keys, one behind the other.
class KeyBuffer {
public:
    explicit KeyBuffer(std::span<const QString> names)
    {
        const std::unique_ptr<icu::Collator> collator = makeCollator();
        _keys.reserve(names.size());
        for (const QString &name : names)
            _keys.push_back(collator ? append(*collator, name) : Key{});
    }

    int compare(std::size_t left, std::size_t right) const
    {
        const Key &a = _keys[left];
        const Key &b = _keys[right];
        const int order
            = std::memcmp(_bytes.data() + a.offset, _bytes.data() + b.offset, std::min(a.length, b.length));
        return order != 0 ? order : (a.length > b.length) - (a.length < b.length);
    }

private:
    Key append(const icu::Collator &collator, const QString &name)
    {
        const auto *text = reinterpret_cast<const UChar *>(name.utf16());
        const auto units = static_cast<int32_t>(name.size());
        const std::size_t offset = _bytes.size();
        std::size_t room = static_cast<std::size_t>(name.size()) * 3 + 16;
        _bytes.resize(offset + room);
        auto length = static_cast<std::size_t>(
            collator.getSortKey(text, units, _bytes.data() + offset, static_cast<int32_t>(room)));
        if (length > room) {
            _bytes.resize(offset + length);
            collator.getSortKey(text, units, _bytes.data() + offset, static_cast<int32_t>(length));
        }
        _bytes.resize(offset + length);
        return {offset, length};
    }

    std::vector<Key> _keys;
    std::vector<uint8_t> _bytes;
};

} // namespace

std::vector<std::size_t> fileBrowserOrder(std::span<const QString> names)
{
    const KeyBuffer keys(names);
    std::vector<std::size_t> order(names.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&](std::size_t left, std::size_t right) {
        const int byKey = keys.compare(left, right);
        return byKey != 0 ? byKey < 0 : names[left] < names[right];
    });
    return order;
}

} // namespace quorvin
