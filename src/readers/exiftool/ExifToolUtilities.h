// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace quorvin {

class oExifToolStayOpenProcess;

namespace ExifToolUtilities {

/// What exiftool says of a file, as it prints it: its groups, its tags with their numbers, and their values.
/// `exifTool` is null where it is not installed. The thread of the process.
Expected<QString> exiftoolOutputForFile(const QString &path, oExifToolStayOpenProcess *exifTool);

/// The values of these tags, by their names, with numbers as numbers; a tag that the file does not have is
/// left out. The same.
Expected<QHash<QString, QString>> plainTagsOfFile(const QString &path, const QStringList &tags,
                                                  oExifToolStayOpenProcess *exifTool);

} // namespace ExifToolUtilities

} // namespace quorvin
