// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/Cover.h"

#include "filefacts/Images.h"

#include <QBuffer>

namespace quorvin {

namespace {

constexpr int kJpegQuality = 90;

} // namespace

QByteArray storedCover(const QByteArray &encoded)
{
    if (encoded.size() <= kLargestCover)
        return encoded;
    const QImage picture = Utilities::thumbnailedImageFromData(encoded, kCoverSide);
    if (picture.isNull())
        return encoded;
    if (picture.hasAlphaChannel())
        return Utilities::pngDataFromImage(picture);
    QByteArray smaller;
    QBuffer device(&smaller);
    device.open(QIODevice::WriteOnly);
    return picture.save(&device, "JPEG", kJpegQuality) ? smaller : encoded;
}

} // namespace quorvin
