// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PropertyListBudget.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace quorvin {

namespace {

constexpr qsizetype kTrailerSize = 32;
constexpr quint64 kObjectBytes = 64; ///< of a node apart from its content
constexpr auto kTooMuch = static_cast<quint64>(kMostExpandedBytes) + 1;
constexpr int kMostLevels = 512; ///< deeper than any list that libplist takes

/// The objects of bytes that nobody has checked yet. Whatever lies outside of them is absent.
class ObjectTable {
public:
    explicit ObjectTable(QByteArrayView bytes)
        : _bytes(bytes),
          _offsetSize(number(bytes.size() - 26, 1).value_or(0)),
          _referenceSize(number(bytes.size() - 25, 1).value_or(0)),
          _count(number(bytes.size() - 24, 8).value_or(0)),
          _root(number(bytes.size() - 16, 8).value_or(0)),
          _offsets(number(bytes.size() - 8, 8).value_or(0))
    {
    }

    /// No more than there are bytes, so that a memory of each costs no more than they do.
    quint64 count() const { return std::min(_count, static_cast<quint64>(_bytes.size())); }
    quint64 root() const { return _root; }

    struct Object {
        quint64 content = 0; ///< bytes of a text or of data
        quint64 references = 0; ///< how many objects it names
        qsizetype first = 0; ///< where their numbers begin
    };

    std::optional<Object> object(quint64 index) const
    {
        const auto start
            = index < count() ? number(place(_offsets, index, _offsetSize), _offsetSize) : std::nullopt;
        const auto marker = start ? number(static_cast<qsizetype>(*start), 1) : std::nullopt;
        if (!marker)
            return std::nullopt;
        auto at = static_cast<qsizetype>(*start) + 1;
        quint64 length = *marker & 0x0f;
        if (length == 0x0f) { // the length follows as a number of its own
            const int size = 1 << (number(at, 1).value_or(0) & 0x03);
            length = number(at + 1, size).value_or(0);
            at += 1 + size;
        }
        length = std::min(length, static_cast<quint64>(_bytes.size()));
        switch (*marker >> 4) {
        case 0x4: // data
        case 0x5: // text
            return Object{length, 0, at};
        case 0x6: // text in units of two bytes
            return Object{2 * length, 0, at};
        case 0xa: // list
        case 0xc: // set
            return Object{0, length, at};
        case 0xd: // map
            return Object{0, 2 * length, at};
        default:
            return Object{};
        }
    }

    std::optional<quint64> reference(const Object &object, quint64 which) const
    {
        return number(place(static_cast<quint64>(object.first), which, _referenceSize), _referenceSize);
    }

private:
    static qsizetype place(quint64 start, quint64 index, quint64 size)
    {
        return static_cast<qsizetype>(start + index * size);
    }

    std::optional<quint64> number(qsizetype at, quint64 size) const
    {
        const auto length = static_cast<qsizetype>(size);
        if (size == 0 || size > 8 || at < 0 || at > _bytes.size() - length)
            return std::nullopt;
        quint64 value = 0;
        for (const char byte : _bytes.sliced(at, length))
            value = value << 8 | static_cast<unsigned char>(byte);
        return value;
    }

    QByteArrayView _bytes;
    quint64 _offsetSize;
    quint64 _referenceSize;
    quint64 _count;
    quint64 _root;
    quint64 _offsets;
};

/// What the copies of an object cost, each object reckoned once.
class Expansion {
public:
    explicit Expansion(const ObjectTable &table) : _table(table), _costs(table.count()) { }

    quint64 costOf(quint64 index, int level)
    {
        if (index >= _costs.size())
            return 0;
        if (level > kMostLevels)
            return kTooMuch;
        if (_costs[index] != 0)
            return _costs[index];
        _costs[index] = kTooMuch; // an object within itself has no end
        _costs[index] = reckon(index, level);
        return _costs[index];
    }

private:
    quint64 reckon(quint64 index, int level)
    {
        const auto object = _table.object(index);
        if (!object)
            return kObjectBytes;
        quint64 cost = kObjectBytes + object->content;
        for (quint64 i = 0; i < object->references && cost < kTooMuch; ++i) {
            const auto reference = _table.reference(*object, i);
            if (!reference)
                break;
            cost += costOf(*reference, level + 1);
        }
        return std::min(cost, kTooMuch);
    }

    const ObjectTable &_table;
    std::vector<quint64> _costs; ///< 0 for one that is not known yet
};

} // namespace

bool expandsWithinBudget(QByteArrayView bytes)
{
    if (!bytes.startsWith("bplist") || bytes.size() <= kTrailerSize)
        return true;
    const ObjectTable table(bytes);
    return Expansion(table).costOf(table.root(), 0) < kTooMuch;
}

} // namespace quorvin
