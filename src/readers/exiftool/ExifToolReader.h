// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/Error.h"
#include "model/RecordContents.h"
#include "model/RecordOptions.h"
#include "platform/RegularFile.h"

namespace quorvin {

class ExifToolImageInfo;
class oExifToolStayOpenProcess;

/// Reads a file with exiftool. `filename` is the path as the list shows it, `file` that file, open. The error
/// is the reason, for a person to read; it is logged too. The thread of the process.
Expected<RecordContents> readExifTool(const QString &filename, const RegularFile &file,
                                      const RecordOptions &options, const DigestWatch &watch,
                                      oExifToolStayOpenProcess *exifTool);

/// Appends what exiftool tells, group by group in the order of their first tags.
void prepareExiftoolData(const ExifToolImageInfo &info, ParameterGroups &groups);

} // namespace quorvin
