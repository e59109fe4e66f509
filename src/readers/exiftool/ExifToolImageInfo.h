// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "model/Vocabulary.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace quorvin {

class oExifToolStayOpenProcess;

/// What exiftool knows of one file, in its order. Without its own tags, and without what the file system
/// tells. A tag that follows one with a list of values is not there: see `Json5ParserHandler`.
class ExifToolImageInfo {
public:
    struct Item {
        QString value; ///< of a list its values, with commas between them
        QString label;
        QString ifd; ///< the group in the Extended tree
    };

    struct Data {
        QStringList exifKeys; ///< a key that comes twice stands here twice
        QHash<QString, Item> exifData; ///< of such a key the later item
    };

    /// `exifTool` is null where it is not installed. The error is the reason, for a person to read. The
    /// thread of the process.
    static Expected<ExifToolImageInfo> initWithFilename(const QString &filename,
                                                        oExifToolStayOpenProcess *exifTool);
    /// The same of an answer that exiftool gave.
    static Expected<ExifToolImageInfo> initWithOutput(const QByteArray &json);

    const Data &data() const { return _data; }

private:
    Data _data;
};

} // namespace quorvin
