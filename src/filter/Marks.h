// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QtGlobal>

#include <cstddef>
#include <vector>

namespace quorvin {

/// Room for so many elements, and for some more: less to spare than the container itself would take, as many
/// of them stand beside each other.
template <typename Container>
void makeRoom(Container &container, std::size_t size)
{
    const std::size_t enough = size + size / 16 + 64;
    if (static_cast<std::size_t>(container.capacity()) < size)
        container.reserve(static_cast<decltype(container.size())>(enough));
}

/// A yes or no for each of many numbers from 0, in a bit each.
class Marks {
public:
    static constexpr std::size_t kWord = 64; ///< marks in a word

    std::size_t size() const { return _size; }
    /// What is new is not marked.
    void resize(std::size_t size)
    {
        makeRoom(_words, (size + kWord - 1) / kWord);
        _words.resize((size + kWord - 1) / kWord);
        _size = size;
    }
    bool operator[](std::size_t number) const
    {
        return (_words[number / kWord] >> (number % kWord) & 1U) != 0;
    }
    /// The marks of the 64 numbers to which this one belongs, the lowest in the lowest bit.
    quint64 word(std::size_t number) const { return _words[number / kWord]; }
    std::size_t bytes() const { return _words.capacity() * sizeof(quint64); }

    void set(std::size_t number) { _words[number / kWord] |= quint64{1} << (number % kWord); }
    void clear(std::size_t number) { _words[number / kWord] &= ~(quint64{1} << (number % kWord)); }

private:
    std::vector<quint64> _words;
    std::size_t _size = 0;
};

} // namespace quorvin
