// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/IndexAnswer.h"

#include <bit>
#include <utility>

namespace quorvin {

IndexAnswer::IndexAnswer(quint64 question, const Progress &progress, std::vector<FilelistItemPtr> files,
                         std::size_t satisfyingRule)
    : _question(question),
      _progress(progress),
      _files(std::move(files)),
      _satisfyingRule(satisfyingRule),
      _slots(std::bit_ceil(_files.size() * 2 + 1), nullptr)
{
    for (const FilelistItemPtr &file : _files)
        _slots[slotOf(file.get())] = file.get();
}

std::size_t IndexAnswer::slotOf(const FilelistItem *file) const
{
    // Multiplies by the golden ratio: addresses differ in their middle bits.
    const quint64 hash = reinterpret_cast<quintptr>(file) * 0x9e3779b97f4a7c15U;
    std::size_t slot = (hash >> 32U) & (_slots.size() - 1);
    while (_slots[slot] && _slots[slot] != file)
        slot = (slot + 1) & (_slots.size() - 1);
    return slot;
}

} // namespace quorvin
