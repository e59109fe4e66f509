// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/FilelistFilter.h"

namespace quorvin {

FilelistFilterFunction::FilelistFilterFunction(const FilelistFilter &filter)
    : _hidesUnknownFiles(filter.hideUnknownFiles),
      _filenameText(filter.filenameText),
      _globalText(filter.globalText),
      _rule(filter.rule),
      _area(filter.area)
{
}

bool FilelistFilterFunction::passesByFacts(const FilelistItem &file) const
{
    if (_hidesUnknownFiles) {
        const QuorvinDataPtr record = file.quorvinData();
        if (!file.isDone() || (record && record->isUnknown()))
            return false;
    }
    if (!_filenameText.isEmpty() && !_filenameText.isIn(file.prefixedPath()))
        return false;
    if (!_area)
        return true;
    const QuorvinDataPtr record = file.quorvinData();
    return record && record->mapLocation() && _area->contains(*record->mapLocation());
}

bool FilelistFilterFunction::passes(const FilelistItem &file) const
{
    if (!passesByFacts(file))
        return false;
    if (!_globalText.isEmpty()) {
        const QuorvinDataPtr record = file.quorvinData();
        if (!record || !record->isContentHas(_globalText))
            return false;
    }
    return _rule.matches(file);
}

} // namespace quorvin
