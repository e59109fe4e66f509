// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "model/Location.h"
#include "places/Clusters.h"
#include "places/Projection.h"

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <vector>

namespace quorvin {

/// The files of a list by where they were recorded; each is in one of the lists, which keep its order. Does
/// not change once made, so any thread may read it.
struct LocatedFiles {
    MapType type = MapType::WebMercator; ///< of the points
    std::vector<FilelistItemPtr> files; ///< on the map
    std::vector<Location> locations; ///< theirs
    std::vector<MapPoint> points; ///< theirs
    std::vector<FilelistItemPtr> without; ///< that tell no position
    std::vector<FilelistItemPtr> impossible; ///< that tell a position which is not on the Earth
    std::vector<FilelistItemPtr> unread; ///< not yet, or not at all

    /// Its place in `files`; absent when it is not on the map.
    std::optional<quint32> placeOf(const FilelistItemPtr &file) const;
};

using LocatedFilesPtr = std::shared_ptr<const LocatedFiles>;

/// Those of `list` that pass. What was gathered so far when it is stopped.
LocatedFilesPtr locatedFilesOf(const std::vector<FilelistItemPtr> &list,
                               const std::function<bool(const FilelistItem &)> &passes, MapType type,
                               const std::stop_token &stop);

} // namespace quorvin
