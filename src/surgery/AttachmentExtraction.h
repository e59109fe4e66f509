// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "process/Job.h"

#include <QString>

namespace quorvin {

class oExifToolStayOpenProcess;

namespace ExifToolUtilities {

/// Writes the files that are attached to a Matroska file into a folder, which must be there. Other files have
/// none. exiftool gives them, and no more than the largest is held, once; all are copied from where they lie
/// where it is not installed, which `exifTool` of null says, or would pass one of them over. An error when
/// the file could not be looked into; one that could not be written is a problem of its own and harms no
/// other. The thread of the process.
Expected<SavedFiles> saveEmbeddedFilesFromFile(const QString &path, const QString &folder,
                                               oExifToolStayOpenProcess *exifTool);

} // namespace ExifToolUtilities

} // namespace quorvin
