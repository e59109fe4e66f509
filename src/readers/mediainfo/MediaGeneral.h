// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/QuorvinData.h"
#include "model/RecordOptions.h"

namespace quorvin {

class oMediaInfo;
class RegularFile;

/// The General facts of a media file: its file facts, format, duration, bit rate and cover, and a line for
/// each stream. Sets duration, `general`, `isVideo` and `isAudio` of the record. Nothing here fails: a
/// missing parameter reads "" and its piece is left out. On the thread of `info`.
void prepareMediainfoGeneral(const oMediaInfo &info, const RegularFile &file, const RecordOptions &options,
                             const DigestWatch &watch, RecordContents &record);

} // namespace quorvin
