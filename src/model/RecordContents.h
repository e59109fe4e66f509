// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/GeneralFacts.h"
#include "model/Location.h"
#include "model/ParameterGroups.h"

#include <QString>

#include <optional>

namespace quorvin {

/// What a reader and the builder of its views found in a file, on the way to becoming a record.
struct RecordContents {
    QString filename; ///< full path as it stands in the list, not resolved
    qint64 duration = 0; ///< playing time in milliseconds; 0 for images and when unknown
    bool isImage = false; ///< an image reader accepted the file
    bool isVideo = false; ///< there is at least one video stream
    bool isAudio = false; ///< there is at least one audio stream
    GeneralFacts general;
    ParameterGroups groups; ///< the first is "File"
    std::optional<Location> mapLocation;

    bool operator==(const RecordContents &) const = default;
};

} // namespace quorvin
