// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <vector>

namespace quorvin {

/// Kinds of metadata that are to go from an image.
struct oEXIV2Metadata {
    bool removeExif = false; ///< what describes the picture and its taking; the structure of the file stays
    bool removeMakernote = false; ///< of the camera's maker; not of raw files, which need it
    bool removeGPS = false; ///< the position
    bool removeIPTC = false; ///< whole
    bool removeXMP = false; ///< whole

    bool operator==(const oEXIV2Metadata &) const = default;
};

/// An item that a removal leaves though it belongs to a kind that goes.
struct KeptItem {
    QString key;
    QString reason; ///< for a person to read

    bool operator==(const KeptItem &) const = default;
};

/// What a removal took from a file, or would take. Keys are those of exiv2, such as "Exif.Photo.DateTime",
/// each once, in the order of the file. Of IPTC and XMP that go whole, too.
struct RemovalResult {
    std::vector<QString> removed; ///< empty: there was nothing to remove, and the file is not touched
    std::vector<KeptItem> kept;

    bool operator==(const RemovalResult &) const = default;
};

} // namespace quorvin
