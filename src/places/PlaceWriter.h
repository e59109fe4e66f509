// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/OutputBuffer.h"
#include "places/PlacedFile.h"

#include <QLatin1String>
#include <QString>
#include <QStringList>

class QIODevice;

namespace quorvin {

struct PlaceFormat;

/// The formats of documents of located files, by their keys, which are also their extensions: "geojson",
/// "kml", "gpx", "csv".
QStringList placeFormats();

/// Writes located files as one document, a file at a time, so that a document of any length takes the memory
/// of one file. Text is UTF-8, degrees have seven decimals at most. Bytes of names that are no UTF-8 become
/// question marks, and what XML can not have U+FFFD.
///
/// All formats have each file's name, path, position and date. GeoJSON leaves out what is not known, CSV has
/// an empty field there. The `when` of KML has a date as exact as it is told, with or without a zone. The
/// `time` of GPX is in universal time, so it has only dates that tell time and zone; all others stand in
/// `cmt`.
///
/// Call `begin`, then `add` for each file in order, then `finish`. One thread.
class PlaceWriter {
public:
    using Result = OutputBuffer::Result;

    /// `format` is one of `placeFormats`. Names and paths are left out where they are to stay private. The
    /// device must outlive this.
    PlaceWriter(const QString &format, QIODevice &device, bool skipPrivate);

    void begin();
    /// Leaves out a file with an impossible position, and counts it. Some bytes may wait until the next call.
    Result add(const PlacedFile &file);
    /// Ends the document and hands all of it on.
    Result finish();

    /// Files in the document.
    qint64 written() const { return _written; }
    /// Files that were left out.
    qint64 impossible() const { return _impossible; }

private:
    const PlaceFormat &_format;
    OutputBuffer _out;
    bool _skipPrivate;
    qint64 _written = 0;
    qint64 _impossible = 0;
};

} // namespace quorvin
