// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Rule.h"
#include "filter/RuleMatcher.h"
#include "intake/FilelistItem.h"
#include "model/SearchText.h"

#include <QString>

namespace quorvin {

/// What narrows the list of a window; all of it has to hold. The default narrows nothing.
struct FilelistFilter {
    bool hideUnknownFiles = false; ///< hides what is not analysed yet, too
    QString filenameText = {}; ///< in the path as the list shows it, whatever the case; "" is in all
    QString globalText = {}; ///< in the name or the value of a parameter, likewise
    Rule rule = {};

    bool isActive() const
    {
        return hideUnknownFiles || !filenameText.isEmpty() || !globalText.isEmpty() || !rule.isEmpty();
    }
    /// It can only change its mind about a file when that has been analysed.
    bool needsRecords() const { return hideUnknownFiles || !globalText.isEmpty() || !rule.isEmpty(); }
    bool operator==(const FilelistFilter &) const = default;
};

/// A filter made ready for many files. Does not change once made, so any thread may use it.
class FilelistFilterFunction {
public:
    explicit FilelistFilterFunction(const FilelistFilter &filter);

    /// Walks the record of the file if it must. A file without a record has no content.
    bool passes(const FilelistItem &file) const;
    /// The part of it that looks at no content: for those who ask an index for the text and the rule.
    bool passesByName(const FilelistItem &file) const;

private:
    bool _hidesUnknownFiles;
    SearchText _filenameText;
    SearchText _globalText;
    RuleMatcher _rule;
};

} // namespace quorvin
