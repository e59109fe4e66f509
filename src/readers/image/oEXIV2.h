// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "platform/RegularFile.h"
#include "readers/image/ImageMetadata.h"

#include <QByteArrayView>
#include <QString>

namespace quorvin {

/// An image as exiv2 and libheif read it, once: made whole or not at all, nothing of the libraries stays
/// behind. Any thread, after the set-up of the library.
class oEXIV2 {
public:
    /// Sets exiv2 up. Once in a process, before any thread.
    static void setupLibrary();
    static QString libVersion();
    static QString heifVersion();

    /// Reads a file with exiv2. Fails, with no message above debug level, for one that is no image for it: a
    /// file of another kind, a video, a damaged file. Without `keepThumb` the preview that stands for the
    /// file is not kept.
    static Expected<oEXIV2> initWithFilename(const QString &path, bool keepThumb = true);
    /// The same for a file that is open; `path` is its name for the log. Of a HEIF or AVIF file only the MIME
    /// type is there.
    static Expected<oEXIV2> initWithFile(const RegularFile &file, const QString &path, bool keepThumb);
    /// The same for the bytes of a file.
    static Expected<oEXIV2> initWithMemData(QByteArrayView bytes, bool keepThumb = true);
    /// Reads a HEIF or AVIF file with libheif. Fails for one that it refuses.
    static Expected<oEXIV2> initWithHeifFilePath(const QString &path);

    const ImageMetadata &data() const { return _data; }

private:
    static oEXIV2 wrapped(ImageMetadata data);
    explicit oEXIV2(ImageMetadata data) : _data(std::move(data)) { }

    ImageMetadata _data;
};

} // namespace quorvin
