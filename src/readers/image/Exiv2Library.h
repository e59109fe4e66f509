// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RegularFile.h"

#include <QByteArray>
#include <QString>

#include <exiv2/exiv2.hpp>

#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace quorvin::exiv2 {

/// What this system needs of the exiv2 library beyond its own calls. Any thread unless said.

/// Routes the library's messages to the debug log, initialises its XMP toolkit, which is not safe for
/// threads, and lets it open ISO base media files. Once in a process, before any thread.
void setUp();

/// Hold one while metadata is read or XMP printed. The library keeps the namespaces of XMP for the whole
/// process without a lock of its own: two threads that decode at once lose packets, and a file that binds a
/// prefix of the library to a namespace of its own would take the labels of that prefix from every later
/// file. At the end the namespaces that the file brought are forgotten. One a thread at a time.
class XmpSession {
public:
    XmpSession();
    ~XmpSession();
    XmpSession(const XmpSession &) = delete;
    XmpSession &operator=(const XmpSession &) = delete;

private:
    std::unique_lock<std::mutex> _lock;
};

/// Whether the library knew this XMP prefix when it was set up.
bool isBuiltInPrefix(const std::string &prefix);

/// Opens a file and leaves its metadata unread. Null for what the library does not know, and for the videos
/// that it would read: its readers of videos loop, abort and free twice on damaged files. Throws what the
/// library throws.
std::unique_ptr<Exiv2::Image> openImage(const QString &path);
/// The same for a file that is open already, and must stay so for as long as the image is used.
std::unique_ptr<Exiv2::Image> openImage(const RegularFile &file);
/// The same for what the library is to read, and to write, through an object of ours.
std::unique_ptr<Exiv2::Image> openImage(Exiv2::BasicIo::AutoPtr io);
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
