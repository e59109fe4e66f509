// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QString>
#include <QStringList>

namespace quorvin {

class oExifToolStayOpenProcess;

/// The reports of the libraries, by name.
QStringList rawSources();

/// False for a report on the library itself.
bool rawSourceTakesFiles(const QString &source);

/// True for a report that needs exiftool.
bool rawSourceUsesExifTool(const QString &source);

/// The report on a file, or the reason why there is none. `path` is "" for a source that takes no files;
/// `exifTool` is only looked at for a source that needs it, and null where it is not installed.
Expected<QString> rawReport(const QString &source, const QString &path,
                            oExifToolStayOpenProcess *exifTool = nullptr);

} // namespace quorvin
