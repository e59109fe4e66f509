// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/BinaryPropertyList.h"

namespace quorvin {

namespace {

constexpr int kLongCount = 15; ///< the count follows as a number of its own

} // namespace

bool BinaryPropertyList::isWhole() const
{
    const auto size = static_cast<quint64>(_bytes.size());
    return _bytes.size() > kTrailerSize
        && offsetTable() + objectCount() * static_cast<quint64>(offsetSize()) + kTrailerSize == size;
}

BinaryPropertyList::Object BinaryPropertyList::object(quint64 index) const
{
    const auto slot = static_cast<qsizetype>(offsetTable() + index * static_cast<quint64>(offsetSize()));
    const auto start = static_cast<qsizetype>(number(slot, offsetSize()));
    const auto marker = static_cast<unsigned char>(_bytes[start]);
    Object object{static_cast<Type>(marker & 0xf0), marker & 0x0fU, {}, 1};
    if (object.count == kLongCount) {
        const int size = 1 << (_bytes[start + 1] & 0x0f);
        object.count = number(start + 2, size);
        object.headerSize = 2 + size;
    }
    const int unit = object.type == Text ? 1 : object.type == WideText ? 2 : referenceSize();
    const quint64 units = object.isText() ? object.count : referenceCount(object);
    object.whole = _bytes.sliced(start, object.headerSize + static_cast<qsizetype>(units) * unit);
    return object;
}

quint64 BinaryPropertyList::referenceCount(const Object &object) const
{
    return object.type == Map ? 2 * object.count : object.count;
}

quint64 BinaryPropertyList::reference(const Object &object, quint64 number) const
{
    const qsizetype start = object.whole.data() - _bytes.data() + object.headerSize;
    return this->number(start + static_cast<qsizetype>(number) * referenceSize(), referenceSize());
}

quint64 BinaryPropertyList::number(qsizetype at, int size) const
{
    quint64 value = 0;
    for (const char byte : _bytes.sliced(at, size))
        value = value << 8 | static_cast<unsigned char>(byte);
    return value;
}

} // namespace quorvin
