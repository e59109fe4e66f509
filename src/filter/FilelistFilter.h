// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Rule.h"
#include "filter/RuleMatcher.h"
#include "intake/FilelistItem.h"
#include "model/SearchText.h"
#include "places/MapArea.h"

#include <QString>

#include <optional>

namespace quorvin {

/// What narrows the list of a window; all of it has to hold. The default narrows nothing.
struct FilelistFilter {
    bool hideUnknownFiles = false; ///< hides what is not analysed yet, too
    QString filenameText = {}; ///< in the path as the list shows it, whatever the case; "" is in all
    QString globalText = {}; ///< in the name or the value of a parameter, likewise
    Rule rule = {};
    std::optional<MapArea> area = {}; ///< where the file was recorded; absent: anywhere, or unknown

    bool isActive() const
    {
        return hideUnknownFiles || !filenameText.isEmpty() || !globalText.isEmpty() || !rule.isEmpty()
            || area;
    }
    bool operator==(const FilelistFilter &) const = default;
};

/// A filter made ready for many files. Does not change once made, so any thread may use it.
class FilelistFilterFunction {
public:
    explicit FilelistFilterFunction(const FilelistFilter &filter);

    /// Walks the record of the file if it must. A file without a record has no content.
    bool passes(const FilelistItem &file) const;
    /// The part of it that looks at no parameter: for those who ask an index for the text and the rule.
    bool passesByFacts(const FilelistItem &file) const;

private:
    bool _hidesUnknownFiles;
    SearchText _filenameText;
    SearchText _globalText;
    RuleMatcher _rule;
    std::optional<MapArea> _area;
};

} // namespace quorvin
