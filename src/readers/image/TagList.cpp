// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/TagList.h"

#include <QHashFunctions>

namespace quorvin {

namespace {

constexpr std::size_t kFirstSlots = 256; ///< a power of two, as all that follow

} // namespace

void TagList::append(ImageTag tag)
{
    if (_slots.size() < 2 * (_tags.size() + 1))
        grow();
    quint32 &place = _slots[slotOf(tag.term->key)];
    if (place == kFree) {
        place = static_cast<quint32>(_tags.size());
        _tags.push_back(std::move(tag));
    } else {
        _tags[place] = std::move(tag);
    }
    _order.push_back(place);
}

void TagList::join(ImageTag tag)
{
    if (find(tag.term->key))
        _tags[_slots[slotOf(tag.term->key)]].value += ", " + tag.value;
    else
        append(std::move(tag));
}

std::optional<QString> TagList::value(const QString &key) const
{
    const ImageTag *tag = find(key);
    return tag && !tag->value.empty() ? std::optional(QString::fromStdString(tag->value)) : std::nullopt;
}

std::size_t TagList::slotOf(const QString &key) const
{
    const std::size_t mask = _slots.size() - 1;
    std::size_t slot = qHash(key) & mask;
    while (_slots[slot] != kFree && _tags[_slots[slot]].term->key != key)
        slot = (slot + 1) & mask;
    return slot;
}

const ImageTag *TagList::find(const QString &key) const
{
    const quint32 place = _slots.empty() ? kFree : _slots[slotOf(key)];
    return place == kFree ? nullptr : &_tags[place];
}

void TagList::grow()
{
    _slots.assign(_slots.empty() ? kFirstSlots : 2 * _slots.size(), kFree);
    for (quint32 place = 0; place < _tags.size(); ++place)
        _slots[slotOf(_tags[place].term->key)] = place;
}

} // namespace quorvin
