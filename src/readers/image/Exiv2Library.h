// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RegularFile.h"

#include <QByteArray>
#include <QString>

#include <exiv2/exiv2.hpp>

#include <memory>
#include <optional>
#include <string>

namespace quorvin::exiv2 {

/// What this system needs of the exiv2 library beyond its own calls. Any thread unless said.

/// Routes the library's messages to the debug log, initialises its XMP toolkit, which is not safe for
/// threads, and lets it open ISO base media files. Once in a process, before any thread.
void setUp();

/// Whether the library knew this XMP prefix when it was set up.
bool isBuiltInPrefix(const std::string &prefix);

/// Opens a file and leaves its metadata unread. Null for what the library does not know, and for the videos
/// that it would read: its readers of videos loop, abort and free twice on damaged files. Throws what the
/// library throws.
std::unique_ptr<Exiv2::Image> openImage(const QString &path);
/// The same for a file that is open already, and must stay so for as long as the image is used.
std::unique_ptr<Exiv2::Image> openImage(const RegularFile &file);
/// The same for bytes, which must outlive the image.
std::unique_ptr<Exiv2::Image> openImage(QByteArrayView bytes);

/// A tag by its numbers, which are found much faster than its key.
class TagNumber {
public:
    explicit TagNumber(const std::string &key);
    /// The first item of that tag, or null.
    const Exiv2::Exifdatum *in(const Exiv2::ExifData &exif) const;

private:
    int _ifdId;
    uint16_t _tag;
};

/// The n-th number of a value. Newer versions of the library have other names for these.
long toLong(const Exiv2::Exifdatum &datum, long n = 0);
double toFloat(const Exiv2::Exifdatum &datum, long n);

/// Absent for bytes that are not valid UTF-8.
std::optional<QString> text(const std::string &utf8);
bool isValidText(const std::string &utf8);

} // namespace quorvin::exiv2
