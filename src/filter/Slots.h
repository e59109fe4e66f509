// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

#include <cstddef>
#include <limits>
#include <vector>

namespace quorvin {

/// Where to find numbers by the hash of what they stand for; a table of open addressing, in which nothing is
/// ever taken out. The numbers are those from 0 on, each added once and in that order.
class Slots {
public:
    /// The number for which `isIt(number)` among those with that hash; absent: `kNone`.
    template <typename IsIt>
    quint32 find(quint64 hash, const IsIt &isIt) const
    {
        std::size_t slot = first(hash);
        while (_slots[slot] != kNone && !isIt(_slots[slot]))
            slot = after(slot);
        return _slots[slot];
    }
    /// The next number. `hashOf(number)` tells the hashes of those that are there, as they may move.
    template <typename HashOf>
    void add(quint64 hash, const HashOf &hashOf)
    {
        if ((_size + std::size_t{1}) * 10 > _slots.size() * 8)
            grow(hashOf);
        place(hash, _size++);
    }
    std::size_t bytes() const { return _slots.capacity() * sizeof(quint32); }

    static constexpr quint32 kNone = std::numeric_limits<quint32>::max();

private:
    template <typename HashOf>
    void grow(const HashOf &hashOf)
    {
        _slots = std::vector(_slots.size() * 5 / 4, kNone);
        for (quint32 number = 0; number < _size; ++number)
            place(hashOf(number), number);
    }
    void place(quint64 hash, quint32 number)
    {
        std::size_t slot = first(hash);
        while (_slots[slot] != kNone)
            slot = after(slot);
        _slots[slot] = number;
    }
    std::size_t first(quint64 hash) const
    {
        const quint64 mixed = hash * 0x9e3779b97f4a7c15U;
        return static_cast<std::size_t>((mixed >> 32U) * _slots.size() >> 32U);
    }
    std::size_t after(std::size_t slot) const { return slot + 1 == _slots.size() ? 0 : slot + 1; }

    static constexpr std::size_t kLeast = 1024;
    std::vector<quint32> _slots = std::vector(kLeast, kNone);
    quint32 _size = 0; ///< numbers
};

} // namespace quorvin
