// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/Cover.h"

#include "pictures/Images.h"

#include <QBuffer>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr int kSmallestSide = 32;

QByteArray encoded(const QImage &picture, const char *format, int quality)
{
    QByteArray bytes;
    QBuffer device(&bytes);
    device.open(QIODevice::WriteOnly);
    return picture.save(&device, format, quality) ? bytes : QByteArray();
}

QByteArray encodedWithin(const QImage &picture, qsizetype most)
{
    constexpr int kDefaultQuality = -1;
    if (picture.hasAlphaChannel()) {
        QByteArray png = encoded(picture, "PNG", kDefaultQuality);
        return png.size() <= most ? png : QByteArray();
    }
    for (const int quality : {90, 75, 50}) {
        QByteArray jpeg = encoded(picture, "JPEG", quality);
        if (jpeg.size() <= most)
            return jpeg;
    }
    return {};
}

} // namespace

Cover coverOf(const QImage &picture, int side)
{
    if (picture.isNull())
        return {};
    const int most = std::min(side, Cover::kMostSide);
    const bool hasAlpha = picture.hasAlphaChannel();
    const QImage small = Utilities::imageResize(picture, {most, most})
                             .convertToFormat(hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    Cover cover{small.width(), small.height(), hasAlpha, {}};
    const qsizetype row = qsizetype{small.width()} * (hasAlpha ? 4 : 3);
    cover.pixels.reserve(row * small.height());
    for (int y = 0; y < small.height(); ++y)
        cover.pixels.append(reinterpret_cast<const char *>(small.constScanLine(y)), row);
    return cover;
}

Cover coverOfData(const QByteArray &encoded, int side)
{
    return coverOf(Utilities::thumbnailedImageFromData(encoded, side), side);
}

QImage imageOfCover(const Cover &cover)
{
    if (cover.isEmpty() || !cover.isValid())
        return {};
    const int bytesOfPixel = cover.hasAlpha ? 4 : 3;
    const QImage view(reinterpret_cast<const uchar *>(cover.pixels.constData()), cover.width, cover.height,
                      qsizetype{cover.width} * bytesOfPixel,
                      cover.hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    return view.copy();
}

QByteArray packedCover(const Cover &cover)
{
    QImage picture = imageOfCover(cover);
    if (picture.isNull())
        return {};
    while (std::max(picture.width(), picture.height()) >= kSmallestSide) {
        if (QByteArray packed = encodedWithin(picture, kMostPackedBytes); !packed.isEmpty())
            return packed;
        picture = Utilities::imageResize(picture, picture.size() / 2);
    }
    return encodedWithin(picture, kMostPackedBytes);
}

QuorvinDataPtr withPackedCover(QuorvinDataPtr record)
{
    if (!record || record->generalInfo().cover.isEmpty())
        return record;
    RecordContents contents = record->contents();
    contents.general.packedCover = packedCover(std::exchange(contents.general.cover, {}));
    return std::make_shared<const QuorvinData>(std::move(contents));
}

} // namespace quorvin
