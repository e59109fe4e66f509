// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/Images.h"

#include "pictures/HeifImage.h"
#include "pictures/JpegScans.h"
#include "platform/RegularFile.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <array>

namespace quorvin::Utilities {

namespace {

QSize fitting(QSize size, QSize limit)
{
    const bool fits = size.width() <= limit.width() && size.height() <= limit.height();
    return fits ? size : size.scaled(limit, Qt::KeepAspectRatio).expandedTo({1, 1});
}

/// The decoder of a JPEG gives eighths of a picture. The most that fit spare it the pixels in between, and
/// all scaling; what is smaller than this is quick as it is.
constexpr int kLeastDraftSide = 512;

QSize draftFitting(QSize size, QSize limit)
{
    const int longer = std::max(size.width(), size.height());
    const int eighths = 8 * limit.width() / longer;
    const QSize draft(size.width() * eighths / 8, size.height() * eighths / 8);
    return eighths * longer / 8 >= kLeastDraftSide ? draft.expandedTo({1, 1}) : fitting(size, limit);
}

/// The formats that are nothing but pixels, as the decoders name them.
constexpr std::array kPixelFormats{"bmp", "cur", "dib", "gif", "icns", "ico", "jp2",  "jpeg", "jpg",
                                   "pbm", "pgm", "png", "ppm", "tga",  "tif", "tiff", "wbmp", "webp"};

bool isPixelFormat(const QByteArray &format)
{
    return std::ranges::find(kPixelFormats, QByteArrayView(format)) != kPixelFormats.end();
}

QImage decoded(QIODevice &device, QSize limit, bool applyOrientation, const PixelLimits &limits = {},
               Picture::Detail detail = Picture::Detail::Full)
{
    const JpegScans scans = scansOf(device);
    QImageReader reader(&device);
    if (scans.count > 0) {
        // Asking each decoder whether the bytes are its own takes a good part of decoding a small preview.
        reader.setFormat("jpeg");
        reader.setAutoDetectImageFormat(false);
    } else if (!isPixelFormat(reader.format())) {
        return {};
    }
    reader.setAutoTransform(applyOrientation);
    const QSize size = reader.size();
    const bool isReduced = scans.count > 0 && !scans.isProgressive;
    if (qint64{size.width()} * size.height() > (isReduced ? limits.reduced : limits.whole)
        || scans.count > kMostScans)
        return {};
    // A progressive file is held as a whole whatever size is asked for.
    if (size.isValid() && fitting(size, limit) != size && !scans.isProgressive)
        reader.setScaledSize(detail == Picture::Detail::Draft && isReduced ? draftFitting(size, limit)
                                                                           : fitting(size, limit));
    return imageResize(reader.read(), limit);
}

QImage decodedHeif(const QString &path, int size, qint64 mostPixels)
{
    const auto picture = HeifImage::open(path).and_then(
        [&](const HeifImage &image) { return image.decoded(size, mostPixels); });
    return picture ? imageResize(*picture, {size, size}) : QImage();
}

} // namespace

QImage thumbnailedImageFromURL(const QString &path, int size, const PixelLimits &limits,
                               Picture::Detail detail)
{
    const auto file = RegularFile::open(path);
    QFile device;
    if (!file || !device.open(file->descriptor(), QIODevice::ReadOnly))
        return {};
    QImage image = decoded(device, {size, size}, true, limits, detail);
    return image.isNull() ? decodedHeif(file->descriptorPath(), size, limits.whole) : image;
}

QImage thumbnailedImageFromData(const QByteArray &data, int size)
{
    QBuffer device;
    device.setData(data);
    device.open(QIODevice::ReadOnly);
    return decoded(device, {size, size}, true);
}

QImage imageResize(const QImage &image, QSize newSize)
{
    if (image.isNull())
        return {};
    const QSize size = fitting(image.size(), newSize);
    return size == image.size() ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage resizedImageFromData(const QByteArray &data, QSize maxSize)
{
    QBuffer device;
    device.setData(data);
    device.open(QIODevice::ReadOnly);
    const QImage image = decoded(device, maxSize, false);
    return image.isNull() ? image : image.convertToFormat(QImage::Format_RGBA8888);
}

QByteArray pngDataFromImage(const QImage &image)
{
    QByteArray bytes;
    QBuffer device(&bytes);
    device.open(QIODevice::WriteOnly);
    return !image.isNull() && image.save(&device, "PNG") ? bytes : QByteArray();
}

} // namespace quorvin::Utilities
