// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quorvin {

/// How a record is to be built; read from the settings once for each thread.
struct RecordOptions {
    bool useSIUnits = true; ///< sizes by the decimal rule, else by the binary one
    bool useSlowThumbProcessing = false; ///< an image may make its cover from the whole file
    bool otherTracksInGeneral = false; ///< the General tab lists the Other tracks too
    bool computeFileHashes = false; ///< MD5 and SHA-1 among the file facts
    bool skipExtAttributes = false; ///< no facts from extended attributes
    bool keepCover = true; ///< a record that nobody looks at needs no picture
    bool useExiftoolForVideo = false; ///< what is no image goes to exiftool instead of MediaInfo
};

} // namespace quorvin
