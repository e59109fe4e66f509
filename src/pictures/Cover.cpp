// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/Cover.h"

#include "pictures/Images.h"

#include <QBuffer>

namespace quorvin {

namespace {

constexpr int kJpegQuality = 90;

} // namespace

QByteArray storedCover(const QByteArray &encoded)
{
    if (encoded.size() <= kLargestCover)
        return encoded;
    QByteArray smaller = encodedPicture(Utilities::thumbnailedImageFromData(encoded, kCoverSide));
    return smaller.isEmpty() ? encoded : smaller;
}

QByteArray encodedPicture(const QImage &picture)
{
    if (picture.isNull() || picture.hasAlphaChannel())
        return Utilities::pngDataFromImage(picture);
    QByteArray bytes;
    QBuffer device(&bytes);
    device.open(QIODevice::WriteOnly);
    return picture.save(&device, "JPEG", kJpegQuality) ? bytes : QByteArray();
}

} // namespace quorvin
