// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "model/StyledText.h"

#include <QString>

#include <optional>
#include <stop_token>
#include <vector>

namespace quorvin {

/// What several files come to together, and what they have in common. Texts are those of their records.
struct FileSum {
    /// A fact of which each file has one text, or none.
    struct Shared {
        std::optional<StyledText> text; ///< of all files that have one; absent when they differ, or none has
        qint64 count = 0; ///< files that have one

        bool differs() const { return count > 0 && !text; }
        bool operator==(const Shared &) const = default;
    };
    struct Kind {
        QString name;
        qint64 count = 0;

        bool operator==(const Kind &) const = default;
    };
    /// A line of General that some file has.
    struct Line {
        QString name; ///< with the number of its stream where one file has several of that kind
        Shared value;

        bool operator==(const Line &) const = default;
    };

    qint64 files = 0;
    qint64 failed = 0; ///< of these; no record tells anything of them below
    qint64 unread = 0; ///< likewise, not read so far
    QString folder; ///< the innermost one that all lie in, without a slash behind it but for the root
    qint64 bytes = 0;
    qint64 duration = 0; ///< milliseconds
    std::vector<Kind> kinds; ///< the most frequent first, then as they come
    Shared mimeName;
    Shared format;
    Shared imageSize;
    std::vector<Line> lines; ///< as in the files; streams of one kind stand together, by their numbers

    qint64 records() const { return files - failed - unread; }
    bool operator==(const FileSum &) const = default;
};

/// The sum of the files as they are at the time; nothing useful once `stop` is asked for. Any thread.
FileSum sumOf(const std::vector<FilelistItemPtr> &files, const std::stop_token &stop = {});

} // namespace quorvin
