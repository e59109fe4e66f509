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
    /// How far the search is, in files.
    struct Progress {
        std::size_t done = 0;
        std::size_t total = 0;
        bool isComplete = false; ///< all files that had been analysed are looked at
    };

    /// The files in the order of the list; of how many the rule holds, whatever the text.
    IndexAnswer(quint64 question, const Progress &progress, std::vector<FilelistItemPtr> files,
                std::size_t satisfyingRule);

    /// The number that `FilelistIndex::ask` gave.
    quint64 question() const { return _question; }
    const Progress &progress() const { return _progress; }
    bool isComplete() const { return _progress.isComplete; }
    /// How many files satisfy the rule, whether they have the text or not.
    std::size_t satisfyingRule() const { return _satisfyingRule; }
    const std::vector<FilelistItemPtr> &files() const { return _files; }
    /// Whether the file is one of them, in the time of one look-up.
    bool has(const FilelistItem *file) const { return _slots[slotOf(file)] == file; }

private:
    std::size_t slotOf(const FilelistItem *file) const;

    quint64 _question;
    Progress _progress;
    std::vector<FilelistItemPtr> _files;
    std::size_t _satisfyingRule;
    std::vector<const FilelistItem *> _slots; ///< open addressing; a power of two of them, null when free
};

using IndexAnswerPtr = std::shared_ptr<const IndexAnswer>;

} // namespace quorvin
