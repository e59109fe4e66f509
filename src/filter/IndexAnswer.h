// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace quorvin {

/// The files that satisfy what a list was asked, as far as they are known. Any thread.
class IndexAnswer {
public:
    /// The files in the order of the list.
    IndexAnswer(quint64 question, bool isComplete, std::vector<FilelistItemPtr> files);

    /// The number that `FilelistIndex::ask` gave.
    quint64 question() const { return _question; }
    /// All files that had been put into the index are looked at.
    bool isComplete() const { return _isComplete; }
    const std::vector<FilelistItemPtr> &files() const { return _files; }
    /// Whether the file is one of them, in the time of one look-up.
    bool has(const FilelistItem *file) const { return _slots[slotOf(file)] == file; }

private:
    std::size_t slotOf(const FilelistItem *file) const;

    quint64 _question;
    bool _isComplete;
    std::vector<FilelistItemPtr> _files;
    std::vector<const FilelistItem *> _slots; ///< open addressing; a power of two of them, null when free
};

using IndexAnswerPtr = std::shared_ptr<const IndexAnswer>;

} // namespace quorvin
