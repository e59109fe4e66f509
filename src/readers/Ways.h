// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/Error.h"
#include "model/RecordContents.h"
#include "model/RecordOptions.h"
#include "platform/RegularFile.h"

#include <QByteArrayView>
#include <QString>

#include <vector>

namespace quorvin {

class oExifToolStayOpenProcess;

/// A way in which a file can be read: one reader.
struct Way {
    QLatin1String name;
    /// Whether it has a try at a file that begins with these bytes, `kBrandHeadLength` of them.
    bool (*takes)(QByteArrayView head, const RecordOptions &options);
    /// The contents of a record; an error when the file is none for this reader. `file` is open on
    /// `filename`. `exifTool` is null where it is not installed.
    Expected<RecordContents> (*read)(const QString &filename, const RegularFile &file,
                                     const RecordOptions &options, const DigestWatch &watch,
                                     oExifToolStayOpenProcess *exifTool);
    /// Readers of any file whatever are alternatives and never a chain: of several that take a file only the
    /// first has its try.
    bool takesAnything = false;
};

/// The ways of a file that begins with these bytes, in the order in which they are tried. The first that
/// accepts the file makes the record; there is no way back. Any thread.
std::vector<const Way *> waysFor(QByteArrayView head, const RecordOptions &options);

} // namespace quorvin
