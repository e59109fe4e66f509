// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/WholePicture.h"

#include "pictures/HeifImage.h"
#include "pictures/Images.h"
#include "platform/RegularFile.h"

#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

/// More than the largest sensors have; a JPEG of that size never lies in memory as a whole. The decoders hold
/// no more than 256 MiB.
constexpr Utilities::PixelLimits kLimits{.whole = qint64{64} * 1000 * 1000,
                                         .reduced = qint64{256} * 1000 * 1000};

struct Frame {
    QSize size; ///< invalid when it is not known
    bool isAnimated = false;
};

Frame frameOfHeif(const QString &path)
{
    const auto image = HeifImage::open(path);
    return image ? Frame{{image->width(), image->height()}} : Frame();
}

/// What is known without decoding.
Frame frameOf(const RegularFile &file)
{
    QFile device;
    if (!device.open(file.descriptor(), QIODevice::ReadOnly))
        return {};
    QImageReader reader(&device);
    if (!reader.canRead())
        return frameOfHeif(file.descriptorPath());
    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize size = reader.size();
    // The pages of a document do not follow each other by themselves.
    const bool isAnimated = reader.supportsAnimation() && reader.imageCount() > 1;
    return {isTurned ? size.transposed() : size, isAnimated};
}

tl::unexpected<Error> refusal(QSize size)
{
    return qint64{size.width()} * size.height() > kLimits.whole
        ? failure(QStringLiteral("%1 × %2 pixels are too many").arg(size.width()).arg(size.height()))
        : failure(QStringLiteral("it cannot be decoded"));
}

} // namespace

Expected<Picture> pictureOfFile(const QString &path, int side, Picture::Detail detail)
{
    const auto file = RegularFile::open(path);
    if (!file)
        return tl::unexpected(file.error());
    const Frame frame = frameOf(*file);
    const QImage image = Utilities::thumbnailedImageFromURL(
        file->descriptorPath(), std::clamp(side, 1, Picture::kMostSide), kLimits, detail);
    if (image.isNull())
        return refusal(frame.size);
    Picture picture = pictureOf(image);
    if (frame.size.isValid()) {
        picture.fullWidth = frame.size.width();
        picture.fullHeight = frame.size.height();
    }
    picture.isAnimated = frame.isAnimated;
    return picture;
}

Picture pictureOf(const QImage &image)
{
    const QImage same = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    Picture picture;
    picture.width = picture.fullWidth = same.width();
    picture.height = picture.fullHeight = same.height();
    // Rows of four-byte pixels have no gaps.
    picture.pixels = QByteArray(reinterpret_cast<const char *>(same.constBits()), same.sizeInBytes());
    return picture;
}

QImage imageOf(const Picture &picture)
{
    if (!picture.isValid())
        return {};
    auto *pixels = new QByteArray(picture.pixels);
    return {reinterpret_cast<const uchar *>(pixels->constData()),
            picture.width,
            picture.height,
            qsizetype{picture.width} * Picture::kBytesOfPixel,
            QImage::Format_ARGB32_Premultiplied,
            [](void *held) { delete static_cast<QByteArray *>(held); },
            pixels};
}

} // namespace quorvin
