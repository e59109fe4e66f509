// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/LocatedFiles.h"

#include <algorithm>

namespace quorvin {

namespace {

void sortIn(LocatedFiles &all, const FilelistItemPtr &file)
{
    const QuorvinDataPtr record = file->quorvinData();
    if (!record)
        return all.unread.push_back(file);
    const std::optional<Location> &location = record->mapLocation();
    if (!location)
        return all.without.push_back(file);
    if (!isPossible(*location))
        return all.impossible.push_back(file);
    all.points.push_back({flattened(all.type, *location), static_cast<quint32>(all.files.size())});
    all.locations.push_back(*location);
    all.files.push_back(file);
}

} // namespace

std::optional<quint32> LocatedFiles::placeOf(const FilelistItemPtr &file) const
{
    const auto found = std::ranges::find(files, file);
    if (found == files.end())
        return std::nullopt;
    return static_cast<quint32>(found - files.begin());
}

LocatedFilesPtr locatedFilesOf(const std::vector<FilelistItemPtr> &list,
                               const std::function<bool(const FilelistItem &)> &passes, MapType type,
                               const std::stop_token &stop)
{
    const auto all = std::make_shared<LocatedFiles>();
    all->type = type;
    for (const FilelistItemPtr &file : list) {
        if (stop.stop_requested())
            break;
        if (passes(*file))
            sortIn(*all, file);
    }
    return all;
}

} // namespace quorvin
