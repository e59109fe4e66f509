// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/ImageSource.h"

#include "model/Log.h"
#include "pictures/ColorProfile.h"
#include "pictures/HeifImage.h"
#include "platform/RegularFile.h"

#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// In the order of the orientation numbers of Exif, which count from 1.
constexpr std::array<QImageIOHandler::Transformation, 8> kOrientations{
    QImageIOHandler::TransformationNone,
    QImageIOHandler::TransformationMirror,
    QImageIOHandler::TransformationRotate180,
    QImageIOHandler::TransformationFlip,
    QImageIOHandler::TransformationFlipAndRotate90,
    QImageIOHandler::TransformationRotate90,
    QImageIOHandler::TransformationMirrorAndRotate90,
    QImageIOHandler::TransformationRotate270,
};

int orientationNumber(QImageIOHandler::Transformations transformation)
{
    const auto *found = std::ranges::find(kOrientations, transformation);
    return static_cast<int>(found - kOrientations.begin()) + 1;
}

QVariantMap propertiesOf(QImageReader &reader)
{
    QVariantMap properties;
    const QSize size = reader.size();
    if (size.isValid()) {
        properties.insert(u"PixelWidth"_s, size.width());
        properties.insert(u"PixelHeight"_s, size.height());
    }
    if (const QImage::Format format = reader.imageFormat(); format != QImage::Format_Invalid) {
        const QPixelFormat pixels = QImage::toPixelFormat(format);
        properties.insert(u"Depth"_s, static_cast<int>(pixels.bitsPerPixel()));
        properties.insert(u"HasAlpha"_s, pixels.alphaUsage() == QPixelFormat::UsesAlpha);
    }
    properties.insert(u"Orientation"_s, orientationNumber(reader.transformation()));
    QVariantMap texts;
    const QStringList keys = reader.textKeys();
    for (const QString &key : keys)
        texts.insert(key, reader.text(key));
    if (!texts.isEmpty())
        properties.insert(u'{' + QString::fromLatin1(reader.format()).toUpper() + u'}', texts);
    return properties;
}

QVariantMap propertiesOf(const HeifImage &image)
{
    QVariantMap properties{
        {u"PixelWidth"_s, image.width()},
        {u"PixelHeight"_s, image.height()},
        {u"HasAlpha"_s, image.hasAlpha()},
        {u"{HEIF}"_s, QVariantMap{{u"ImageCount"_s, image.numberOfTopLevelImages()}}},
    };
    if (const int depth = image.depth(); depth > 0)
        properties.insert(u"Depth"_s, depth);
    if (const auto profile = ColorProfile::read(image.rawColorProfile())) {
        properties.insert(u"ColorModel"_s, profile->model);
        properties.insert(u"ProfileName"_s, profile->name);
    }
    return properties;
}

} // namespace

Expected<QVariantMap> imageProperties(const QString &path)
{
    const auto file = RegularFile::open(path);
    if (!file)
        return tl::unexpected(file.error());
    QFile device;
    if (!device.open(file->descriptor(), QIODevice::ReadOnly))
        return failure(device.errorString());
    QImageReader reader(&device);
    if (reader.canRead())
        return propertiesOf(reader);
    const auto heif = HeifImage::open(path);
    if (!heif) {
        qCInfo(lcQuorvin, "failed to load source: %i", static_cast<int>(reader.error()));
        return tl::unexpected(heif.error());
    }
    return propertiesOf(*heif);
}

} // namespace quorvin
