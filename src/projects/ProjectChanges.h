// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "projects/FactKeeping.h"
#include "projects/Project.h"

#include <QFlags>

#include <vector>

namespace quorvin {

/// What of a file is not as a project remembers it.
enum class ChangedFact {
    None = 0,
    Size = 1,
    Modified = 2, ///< the date of its last change
    Content = 4, ///< by the digest
};
Q_DECLARE_FLAGS(ChangedFacts, ChangedFact)
Q_DECLARE_OPERATORS_FOR_FLAGS(ChangedFacts)

struct FileChange {
    enum Kind { Changed, Vanished, New };

    Kind kind = Changed;
    QString path;
    ChangedFacts facts; ///< of one that changed

    bool operator==(const FileChange &) const = default;
};

/// What cannot be told, and why.
struct ChangeProblem {
    QString path;
    QString reason;
};

struct ProjectChanges {
    std::vector<FileChange>
        changes; ///< the project's files in their order, then new ones like a file browser
    std::vector<ChangeProblem> problems;
};

/// Which files are read whole for the digest that is kept of them.
enum class DigestCheck {
    Doubtful, ///< those of the same size with another date
    All, ///< all of the same size
};

/// What is not as it was when the facts of the project were kept. Where none are kept only vanished files are
/// told. New are the files of its folders that were not there, but for projects. The date of creation alone
/// is no change: copies of a folder have their own. A stop ends it with what is known so far. Any thread.
ProjectChanges changesSince(const Project &project, DigestCheck check, const std::stop_token &stop = {},
                            const FilesProgress &progress = {});

} // namespace quorvin
