// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string_view>

namespace quorvin {

/// Whether a tag stays out of the record: pointers into the file and blocks that other items stand for. In a
/// maker note ("Makernote") the full key decides, elsewhere the tag name.
bool skipExifTag(std::string_view tagName, std::string_view ifdName, std::string_view fullKey);

/// The display name of a maker-note group of exiv2, such as Auto Focus for NikonAf2; a name that is not in
/// the table comes back unchanged.
QString makernoteGroupName(const QString &group);

/// Names a format by its MIME type.
struct RawInfo {
    QString imageType; ///< short name; the MIME type itself for one that is not in the table
    bool isRaw = false; ///< a camera's raw format
};

/// `hasDngVersion`: the Exif data has Exif.Image.DNGVersion, which makes a TIFF a DNG.
RawInfo rawInfo(const QString &mimeType, bool hasDngVersion);

} // namespace quorvin
